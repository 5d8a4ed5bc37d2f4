head of the template, not for the output
{BEGIN TEMPLATE}
a
{BEGIN TEMPLATE}
{INIT_00}
