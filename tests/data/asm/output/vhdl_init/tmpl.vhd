head of the template, not for the output
{BEGIN TEMPLATE}
INIT 00 = "{INIT_00}";
