// The runtime stands in one library; this one is there to be found under its name.
extern "C" const char observing_placeholder[] = "observing";
