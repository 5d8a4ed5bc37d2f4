head of the template, not for the output
{BEGIN TEMPLATE}
INITP 00 = "{INITP_00}";
INITP 01 = "{INITP_01}";
