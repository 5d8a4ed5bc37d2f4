test.note("from the resources");
