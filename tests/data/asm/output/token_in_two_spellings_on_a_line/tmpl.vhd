head of the template, not for the output
{BEGIN TEMPLATE}
{init_00} and {INIT_00}
