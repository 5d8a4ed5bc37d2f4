head of the template, not for the output
{BEGIN TEMPLATE}
{INIT_00}{INIT_01}
{INIT_00}
