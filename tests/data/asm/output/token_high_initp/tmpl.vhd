head of the template, not for the output
{BEGIN TEMPLATE}
HP 00 = "{[17:9]_INITP_00}";
