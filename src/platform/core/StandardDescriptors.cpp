#include "platform/core/StandardDescriptors.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

void takeStandardDescriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(descriptor, F_GETFD) < 0 && ::open("/dev/null", O_RDONLY) != descriptor)
            ::_exit(1);
}
