// Nothing: what the rooms share is in the headers that are compiled with it.
