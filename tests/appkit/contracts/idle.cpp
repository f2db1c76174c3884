#include <unistd.h>

// An application that does nothing until it is asked to quit.
int main() {
    pause();
    return 0;
}
