{INIT_00} {NAME}
// here: {begin Template} {INIT_00} {NAME}
{INIT_00}
