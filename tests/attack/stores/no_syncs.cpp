// The whole program runs some thousand times here, and nobody pulls the plug: a sync would prove
// nothing and take most of the time. This definition goes before the library's.
#include <unistd.h>

int fsync(int) { return 0; }
