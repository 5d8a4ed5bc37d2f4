#pragma once

/// The release, in the form year-month.number; the one place where it is named.
#define NALVO_RELEASE "2016-9.1"
