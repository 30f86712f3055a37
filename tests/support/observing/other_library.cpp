// The runtime stands in one library. This one is there only to be found under its name.
