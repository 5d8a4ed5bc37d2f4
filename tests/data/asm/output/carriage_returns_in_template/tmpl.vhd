dropped
{begin template}
-- ab
entity {ENTITYNAME} is
INIT => "{INIT_00}";
-- end