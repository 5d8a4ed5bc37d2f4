head of the template, not for the output
{BEGIN TEMPLATE}
INIT 00 = "{INIT_00}";
INIT 01 = "{INIT_01}";
L 00 = "{[8:0]_INIT_00}";
H 00 = "{[17:9]_INIT_00}";
