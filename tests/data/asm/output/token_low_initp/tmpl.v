head of the template, not for the output
{BEGIN TEMPLATE}
PL 00 = "{[8:0]_INITP_00}";
