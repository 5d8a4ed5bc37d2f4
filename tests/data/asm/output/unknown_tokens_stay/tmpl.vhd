head of the template, not for the output
{BEGIN TEMPLATE}
{INIT_} {INIT_0G} {INITQ_00} {VERSION} {[9:0]_INIT_00} { INIT_00 }
{INIT_00}
