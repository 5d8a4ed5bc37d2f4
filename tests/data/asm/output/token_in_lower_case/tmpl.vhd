head of the template, not for the output
{BEGIN TEMPLATE}
a {init_00} b
