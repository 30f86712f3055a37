// Identities and names of all messages, and the variables that clients and the process may set.
#include "exports/catalogue.inc"
#include "exports/variables.inc"
