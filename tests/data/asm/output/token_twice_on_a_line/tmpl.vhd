head of the template, not for the output
{BEGIN TEMPLATE}
{INIT_00} and {INIT_00}
