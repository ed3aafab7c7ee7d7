#include "TestSupport.h"
#include "platform/core/Files.h"
#include "platform/core/NativeFiles.h"
#include "platform/core/NativeNames.h"

#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// The file's bytes, read by its name's bytes.
QByteArray contentOf(const QByteArray& file) {
    QByteArray out;
    const int fd = ::open(file.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return "<unreadable>";
    char buffer[4096];
    for (ssize_t n; (n = ::read(fd, buffer, sizeof buffer)) > 0;)
        out.append(buffer, n);
    ::close(fd);
    return out;
}

mode_t modeOf(const QByteArray& file) {
    struct stat st {};
    return ::stat(file.constData(), &st) == 0 ? st.st_mode : 0;
}

QStringList namesOf(const QList<Files::Status>& files) {
    QStringList names;
    for (const Files::Status& f : files)
        names << f.fileName();
    names.sort();
    return names;
}
} // namespace

// Folders, files, listings and new files under names that are not UTF-8 are the ones named, and
// what is said of them is said of those.
TEST_F(PelvaneTest, FileWorkReachesNamesThatAreNotUtf8) {
    const QByteArray base = QFile::encodeName(path("x"));
    const QString folder = Files::fromNativeName(base + "/caf\xe9/d\xe8");
    struct Removed {
        QString folder;
        ~Removed() { QProcess::execute(QStringLiteral("rm"), {"-rf", "--", folder}); }
    } removed{path("x")};
    ASSERT_TRUE(Files::makePath(folder));
    EXPECT_TRUE(S_ISDIR(modeOf(base + "/caf\xe9/d\xe8")));
    EXPECT_TRUE(Files::status(folder).isDir);
    EXPECT_EQ(Files::folderOf(folder + "/x"), folder);

    for (const char* name : {"Pelvane-1.sqlite", "Pelvane-2.txt", ".Pelvane-3.part1"}) {
        QFile file;
        ASSERT_TRUE(Files::open(file, folder + '/' + name, QIODevice::WriteOnly).ok());
        file.write(name);
    }
    ASSERT_TRUE(Files::makePath(folder + "/Pelvane-4.sqlite"));
    EXPECT_EQ(contentOf(base + "/caf\xe9/d\xe8/Pelvane-1.sqlite"), "Pelvane-1.sqlite");
    const Files::Status first = Files::status(folder + "/Pelvane-1.sqlite");
    EXPECT_TRUE(first.exists && first.isFile);
    EXPECT_EQ(first.size, 16);
    // Only regular files, and a name with a leading dot only when the wildcard has one.
    EXPECT_EQ(namesOf(Files::filesIn(folder, {"Pelvane-*.sqlite"})),
              QStringList{"Pelvane-1.sqlite"});
    EXPECT_EQ(namesOf(Files::filesIn(folder, {"*"})),
              QStringList({"Pelvane-1.sqlite", "Pelvane-2.txt"}));
    EXPECT_EQ(namesOf(Files::filesIn(folder, {".Pelvane-*.part*"})),
              QStringList{".Pelvane-3.part1"});

    QFile missing;
    const Result<void> opened = Files::open(missing, folder + "/missing", QIODevice::ReadOnly);
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(opened.error().message, "No such file or directory");
    EXPECT_FALSE(Files::status(folder + "/missing").exists);
    const Result<QString> aFolder = Files::readText(folder);
    ASSERT_FALSE(aFolder.ok());
    EXPECT_EQ(aFolder.error().message, "Is a directory");

    // New files are new, each of its own, private until renamed.
    const Result<Files::NewFile> a = Files::createUnique(folder + "/.new.XXXXXX.part");
    const Result<Files::NewFile> b = Files::createUnique(folder + "/.new.XXXXXX.part");
    ASSERT_TRUE(a.ok() && b.ok());
    ::close(a.value().fd);
    ::close(b.value().fd);
    EXPECT_NE(a.value().path, b.value().path);
    EXPECT_EQ(modeOf(Files::nativeName(a.value().path)) & 0777, 0600u);
    EXPECT_EQ(Files::canonicalName(folder + "/../" + Files::fromNativeName("d\xe8/") +
                                   a.value().path.section('/', -1)),
              Files::fromNativeName(base + "/caf\xe9/d\xe8/") + a.value().path.section('/', -1));
    EXPECT_TRUE(Files::remove(a.value().path));
    EXPECT_FALSE(Files::status(a.value().path).exists);

    ASSERT_TRUE(Files::writeAtomically(folder + "/out.csv", "whole").ok());
    EXPECT_EQ(contentOf(base + "/caf\xe9/d\xe8/out.csv"), "whole");
    ASSERT_TRUE(Files::copyAtomically(folder + "/out.csv", folder + "/copy.csv").ok());
    EXPECT_EQ(contentOf(base + "/caf\xe9/d\xe8/copy.csv"), "whole");
    EXPECT_EQ(Files::readText(folder + "/copy.csv").value(), "whole");
}

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
    EXPECT_EQ(contentOf(real), "later");
    EXPECT_EQ(modeOf(real) & 07777, 0640u);

    const mode_t mask = ::umask(022);
    ::umask(mask);
    ASSERT_TRUE(Files::writeAtomically(path("new.csv"), "new").ok());
    EXPECT_EQ(modeOf(QFile::encodeName(path("new.csv"))) & 07777, 0666u & ~mask);
}
