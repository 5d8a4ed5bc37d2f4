// Carries the precompiled header; it has no content of its own.
