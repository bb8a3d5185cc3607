// Nothing but the headers that are compiled with it, for the tests of many files.
