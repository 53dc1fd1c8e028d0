// A shared library with nothing in it.
void DoNothing();

void DoNothing() {}
