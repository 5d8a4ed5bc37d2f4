head of the template, not for the output
{BEGIN TEMPLATE}
{[8:0]_INIT_00}-{INIT_00}-{[17:9]_INIT_00}
{INIT_01}
