head of the template, not for the output
{BEGIN TEMPLATE}
entity {ENTITYNAME} is
end {entityname};
rom: {NAME}, {Name} {NAME}
{INIT_00}
