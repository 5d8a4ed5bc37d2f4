head of the template, not for the output
{BEGIN TEMPLATE}
module {ENTITYNAME} (clk); // {NAME}
module {NAME} (clk);
{INIT_00}
