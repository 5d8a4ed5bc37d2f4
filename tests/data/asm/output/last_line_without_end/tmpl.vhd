head of the template, not for the output
{BEGIN TEMPLATE}
a

  b
{INIT_00}