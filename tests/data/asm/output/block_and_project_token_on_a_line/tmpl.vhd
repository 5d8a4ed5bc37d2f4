head of the template, not for the output
{BEGIN TEMPLATE}
{NAME}: {INIT_00}
{NAME}: {[17:9]_INIT_00}
{INIT_01}
