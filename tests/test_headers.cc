// Nothing but the headers that are compiled with it, for all tests.
