head of the template, not for the output
{BEGIN TEMPLATE}
INIT 00 = "{INIT_00}";
INIT 01 = "{INIT_01}";
INIT 02 = "{INIT_02}";
INIT 03 = "{INIT_03}";
INIT 04 = "{INIT_04}";
INIT 05 = "{INIT_05}";
INIT 06 = "{INIT_06}";
INIT 07 = "{INIT_07}";
INIT 08 = "{INIT_08}";
INIT 09 = "{INIT_09}";
INIT 0A = "{INIT_0A}";
INIT 0B = "{INIT_0B}";
INIT 0C = "{INIT_0C}";
INIT 0D = "{INIT_0D}";
INIT 0E = "{INIT_0E}";
INIT 0F = "{INIT_0F}";
