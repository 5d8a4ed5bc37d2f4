head of the template, not for the output
{BEGIN TEMPLATE}
L 00 = "{[8:0]_INIT_00}";
L 01 = "{[8:0]_INIT_01}";
L 02 = "{[8:0]_INIT_02}";
L 03 = "{[8:0]_INIT_03}";
L 04 = "{[8:0]_INIT_04}";
L 05 = "{[8:0]_INIT_05}";
L 06 = "{[8:0]_INIT_06}";
L 07 = "{[8:0]_INIT_07}";
