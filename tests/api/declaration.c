typedef int nothing;
