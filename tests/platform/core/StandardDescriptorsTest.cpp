#include "platform/core/StandardDescriptors.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

TEST(StandardDescriptors, ClosedOnesAreTakenAndOpenOnesLeft) {
    const int kept = ::dup(STDIN_FILENO), other = ::dup(STDOUT_FILENO);
    ::close(STDIN_FILENO);
    ::close(STDOUT_FILENO);
    takeStandardDescriptors();
    char byte = 0;
    const auto read = ::read(STDIN_FILENO, &byte, 1), written = ::write(STDOUT_FILENO, &byte, 1);
    const int next = ::open("/dev/null", O_RDONLY);
    ::dup2(other, STDOUT_FILENO);
    takeStandardDescriptors();
    ::dup2(kept, STDIN_FILENO);
    EXPECT_EQ(read, 0) << "no end of the input";
    EXPECT_EQ(written, -1) << "lost without an error";
    EXPECT_GT(next, STDERR_FILENO);
    EXPECT_EQ(::write(STDOUT_FILENO, "", 0), 0) << "an open one was replaced";
    for (const int descriptor : {kept, other, next}) ::close(descriptor);
}
