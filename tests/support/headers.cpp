// Nothing: what the suites share is in the headers that are compiled with it.
