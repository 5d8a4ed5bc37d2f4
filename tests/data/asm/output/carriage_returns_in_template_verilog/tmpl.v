{begin template}
// ab
{INIT_00}