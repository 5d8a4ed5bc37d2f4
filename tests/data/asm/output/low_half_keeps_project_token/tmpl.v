head of the template, not for the output
{BEGIN TEMPLATE}
{NAME}: {[8:0]_INIT_00}
