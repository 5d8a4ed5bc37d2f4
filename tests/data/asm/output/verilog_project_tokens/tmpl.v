head of the template, not for the output
{BEGIN TEMPLATE}
-- {PROJECTTITLE}
-- {projectversion}
-- {ProjectComment} {ProjectComment}
{INIT_00}
