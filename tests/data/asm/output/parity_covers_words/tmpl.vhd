head of the template, not for the output
{BEGIN TEMPLATE}
{[17:9]_INITP_00}
