head of the template, not for the output
{BEGIN TEMPLATE}
{INIT_00} {INITP_00}
{INIT_01}
{INIT_02}
{INIT_03}
{INIT_04}
{INIT_05}
{INIT_06}
{INIT_07}
