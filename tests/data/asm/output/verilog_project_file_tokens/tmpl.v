head of the template, not for the output
{BEGIN TEMPLATE}
-- {PROJECTFILENAME}
-- {PsmName}
{INIT_00}
