head of the template, not for the output
{BEGIN TEMPLATE}
{INIT_0} {INIT_0}
{INIT_00000}
