head of the template, not for the output
{BEGIN TEMPLATE}
H 00 = "{[17:9]_INIT_00}";
H 01 = "{[17:9]_INIT_01}";
H 02 = "{[17:9]_INIT_02}";
H 03 = "{[17:9]_INIT_03}";
H 04 = "{[17:9]_INIT_04}";
H 05 = "{[17:9]_INIT_05}";
H 06 = "{[17:9]_INIT_06}";
H 07 = "{[17:9]_INIT_07}";
