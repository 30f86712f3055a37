// The whole runtime is in one library. This one only has to exist under its name.
