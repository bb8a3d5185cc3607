// Nothing but the headers that are compiled with it, for the programs that use them.
