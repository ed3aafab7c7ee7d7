#include "TestSupport.h"
#include "platform/core/Files.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {
mode_t modeOf(const QByteArray& file) {
    struct stat st {};
    return ::stat(file.constData(), &st) == 0 ? st.st_mode : 0;
}
} // namespace

// An atomic write replaces what a symbolic link names and leaves the link; the file keeps its
// permissions, and a new one gets those of any new file.
TEST_F(PelvaneTest, AtomicWritesKeepLinksAndPermissions) {
    const QByteArray real = QFile::encodeName(path("real.csv"));
    ASSERT_TRUE(Files::writeAtomically(path("real.csv"), "earlier").ok());
    ASSERT_EQ(::chmod(real.constData(), 0640), 0);
    ASSERT_EQ(::symlink("real.csv", QFile::encodeName(path("link.csv")).constData()), 0);
    ASSERT_TRUE(Files::writeAtomically(path("link.csv"), "later").ok());
    EXPECT_TRUE(S_ISLNK([&] {
        struct stat st {};
        ::lstat(QFile::encodeName(path("link.csv")).constData(), &st);
        return st.st_mode;
    }()));
    EXPECT_EQ(readFile(path("real.csv")), "later");
    EXPECT_EQ(modeOf(real) & 07777, 0640u);

    const mode_t mask = ::umask(022);
    ::umask(mask);
    ASSERT_TRUE(Files::writeAtomically(path("new.csv"), "new").ok());
    EXPECT_EQ(modeOf(QFile::encodeName(path("new.csv"))) & 07777, 0666u & ~mask);
}
