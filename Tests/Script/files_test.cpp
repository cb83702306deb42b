#include "Script/files.h"

#include <csignal>
#include <optional>
#include <stdexcept>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Script/bounds.h"
#include "Script/log_file.h"
#include "Script/record_file.h"
#include "Support/approved.h"
#include "Support/temporary_directory.h"

namespace Orvo::Script {
namespace {

using namespace Tests;

/// No file may grow beyond this as long as this is.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
    sighandler_t signalBefore_;
};

class FilesTest : public testing::Test {
protected:
    FilesTest() {
        directory_.add({"file = precious", "target = precious", "link -> target",
                        "dangling -> nowhere", "directory/"});
        ::mkfifo(at("pipe").c_str(), 0600);
    }

    [[nodiscard]] std::string at(const std::string& name) const { return directory_.path() / name; }

    /// Why nothing can be recorded there; empty when it can.
    [[nodiscard]] std::string refusal(const std::string& name, Existing existing) const {
        try {
            const RecordFile file(directory_.path() / name, existing);
            return "";
        } catch (const std::runtime_error& failure) {
            const std::string path = directory_.path() / name;
            const std::string text = failure.what();
            return text.starts_with(path + ": ") ? text.substr(path.size() + 2) : text;
        }
    }

    /// False where the file system has no such files.
    [[nodiscard]] bool makeAppendOnly(const std::string& name, bool isOn) const {
        const FileDescriptor file(::open(at(name).c_str(), O_RDONLY | O_CLOEXEC));
        int flags = isOn ? FS_APPEND_FL : 0;
        return ::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0;
    }

    TemporaryDirectory directory_;
};

TEST_F(FilesTest, OnlyARegularFileIsReplacedAndOnlyWhenAsked) {
    const RecordFile other(at("recording"), Existing::refused);
    struct Row {
        const char* name;
        const char* refused;
        const char* overwritten;
    };
    const Row rows[] = {
        {"file", "File exists", ""},
        {"link", "Symbolic links are not followed", "Symbolic links are not followed"},
        {"dangling", "Symbolic links are not followed", "Symbolic links are not followed"},
        {"pipe", "Not a regular file", "Not a regular file"},
        {"/dev/full", "Not a regular file", "Not a regular file"},
        {"directory", "Is a directory", "Is a directory"},
        {"nowhere/file", "No such file or directory", "No such file or directory"},
        {"recording", "File exists", "A recording is being written to it"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(refusal(row.name, Existing::refused), row.refused) << row.name;
        EXPECT_EQ(refusal(row.name, Existing::overwritten), row.overwritten) << row.name;
    }
    EXPECT_EQ(textIn(at("target")), "precious");
    EXPECT_EQ(textIn(at("file")), "");
    struct stat status {};
    ::stat(at("file").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(FilesTest, AnAppendOnlyFileStaysAsItIs) {
    if (!makeAppendOnly("file", true)) GTEST_SKIP() << "no such files here";
    EXPECT_EQ(refusal("file", Existing::overwritten), "Operation not permitted");
    EXPECT_TRUE(makeAppendOnly("file", false));
    EXPECT_EQ(textIn(at("file")), "precious");
}

TEST_F(FilesTest, WhatIsReadIsARegularFileAndNothingIsWaitedFor) {
    EXPECT_GE(openRegular(at("link")).get(), 0);
    for (const char* name : {"pipe", "directory", "nowhere", "/dev/null"}) {
        EXPECT_THROW(openRegular(directory_.path() / name), std::runtime_error) << name;
    }
    EXPECT_GE(openReadable(at("pipe")).get(), 0);
}

TEST_F(FilesTest, WhatIsNotKeptHasNotHappened) {
    for (const char* name : {"file", "new"}) {
        NewFile(at(name), Existing::overwritten, Readers::usual).write("half");
    }
    EXPECT_EQ(textIn(at("file")), "precious");
    EXPECT_FALSE(std::filesystem::exists(at("new")));
}

TEST_F(FilesTest, ARecordingThatStoppedGoesOnWithNothingLeftOut) {
    struct Row {
        const char* reason;
        const char* place;
        std::function<void(RecordFile&)> act;
    };
    const std::string big(5000, 'x');
    const auto onFullDisk = [&](RecordFile& file) {
        const FullDisk full(4096);
        file.append(big + '\n');
    };
    const auto onceRemoved = [&](RecordFile& file) {
        std::filesystem::remove(at("session"));
        file.append(big + '\n');
    };
    const auto onceMoved = [&](RecordFile& file) {
        std::filesystem::rename(at("session"), at("moved"));
        file.append(big + '\n');
    };
    const Row rows[] = {
        {"The file was removed", "elsewhere", onceMoved},
        {"File too large", "elsewhere", onFullDisk},
        {"File too large", "./session", onFullDisk},
        {"The file was removed", "elsewhere", onceRemoved},
        {"The file was removed", "session", onceRemoved},
    };
    for (const auto& [reason, place, act] : rows) {
        RecordFile file(at("session"), Existing::refused);
        file.append("first\n");
        EXPECT_EQ(file.failure(), std::nullopt) << reason;
        act(file);
        EXPECT_EQ(file.failure().value_or(""), at("session") + ": " + reason);
        if (std::filesystem::exists(at("session"))) {
            EXPECT_EQ(textIn(at("session")), "first\n") << "no line is cut off";
        }
        file.append("second\n");
        EXPECT_THROW(file.moveTo(at("directory"), Existing::overwritten), std::runtime_error);
        file.moveTo(at(place), Existing::overwritten);
        file.append("third\n");
        EXPECT_EQ(file.failure(), std::nullopt) << reason;
        EXPECT_EQ(textIn(at(place)), "first\n" + big + "\nsecond\nthird\n") << reason;
        std::filesystem::remove(at("session"));
    }
}

TEST_F(FilesTest, ALogIsKeptInTwoFilesAndWhatTheDiskDoesNotTakeInMemory) {
    directory_.add({"log.txt = earlier\n"});
    LogFile log(at("log.txt"), 20);
    LogFile other(at("log.txt"), 20);
    for (const char* line : {"one\n", "two\n", "three\n", "four\n"}) {
        log.append(line);
        log.flush();
    }
    EXPECT_EQ(log.text(), "one\ntwo\nthree\nfour\n");
    EXPECT_EQ(textIn(at("log.txt.before")), "earlier\none\ntwo\n");
    EXPECT_EQ(textIn(at("log.txt")), "three\nfour\n");
    {
        const FullDisk full(12);
        log.append("five\n");
        for (int i = 0; i < 2; ++i) log.flush();
    }
    EXPECT_EQ(textIn(at("log.txt")), "three\nfour\n") << "no line is cut off";
    EXPECT_EQ(log.takeFailure(), at("log.txt") + ": File too large");
    EXPECT_EQ(log.takeFailure(), std::nullopt);
    EXPECT_TRUE(log.text().ends_with("four\nfive\n"));
    log.flush();
    EXPECT_EQ(textIn(at("log.txt")), "three\nfour\nfive\n");
    other.append("another's\n");
    other.flush();
    EXPECT_EQ(textIn(at("log-2.txt")), "another's\n");
    for (const char* name : {"link", "pipe", "directory", "nowhere/log"}) {
        LogFile none(at(name));
        none.append("kept\n");
        EXPECT_EQ(std::pair(none.text(), none.takeFailure().has_value()),
                  std::pair(std::string("kept\n"), name == std::string_view("nowhere/log")))
            << name;
    }
}

TEST_F(FilesTest, ARecordingKeepsSoMuchForAnotherFileAndEndsThere) {
    RecordFile file(at("session"), Existing::refused);
    std::filesystem::remove(at("session"));
    std::string whole;
    for (int i = 0; whole.size() < 2 * kMostKept; ++i) {
        const std::string line = std::to_string(i) + std::string(100'000, 'x') + '\n';
        whole += line;
        file.append(line);
        EXPECT_EQ(file.failure(), at("session") + (file.isLost() ? ": No more can be kept"
                                                                 : ": The file was removed"));
    }
    EXPECT_TRUE(file.isLost());
    file.moveTo(at("elsewhere"), Existing::refused);
    file.append("not after a gap\n");
    const std::string kept = textIn(at("elsewhere"));
    EXPECT_EQ(file.failure(), at("elsewhere") + ": No more can be kept");
    EXPECT_TRUE(whole.starts_with(kept) && kept.ends_with('\n'));
    EXPECT_NEAR(double(kept.size()), double(kMostKept), 200'000);
}

TEST_F(FilesTest, ARecordingThatOthersChangeIsOver) {
    for (const std::uintmax_t size : {std::uintmax_t{0}, std::uintmax_t{5}, std::uintmax_t{99}}) {
        RecordFile file(at("session"), Existing::overwritten);
        file.append("first\nsecond\n");
        std::filesystem::resize_file(at("session"), size);
        EXPECT_EQ(file.failure(), at("session") + ": Another program has changed the file");
        EXPECT_TRUE(file.isChanged());
    }
}

TEST_F(FilesTest, ThereIsRoomBesideTheLongestName) {
    const std::string name(255, 'x');
    for (const Existing existing : {Existing::refused, Existing::overwritten}) {
        EXPECT_EQ(refusal(name, existing), "");
    }
}

// Writes some, and waits for its end.
[[noreturn]] void writeUntilKilled(const std::string& path) {
    RecordFile file(path, Existing::refused);
    for (int i = 0; i < 100; ++i) file.append(std::to_string(i) + std::string(50000, 'x') + '\n');
    ::alarm(10);
    for (;;) ::pause();
}

TEST_F(FilesTest, WhatStoodInAFileStaysWhenTheProgramIsKilled) {
    for (std::uintmax_t kill = 0; kill < 20; ++kill) {
        const std::string name = at("killed" + std::to_string(kill));
        const pid_t child = ::fork();
        if (child == 0) writeUntilKilled(name);
        ASSERT_GT(child, 0);
        const auto hasGrown = [&] {
            std::error_code missing;
            const auto size = std::filesystem::file_size(name, missing);
            return !missing && size > 200000 * kill;
        };
        for (int looks = 0; looks < 50000 && !hasGrown(); ++looks) ::usleep(100);
        const std::string before = textIn(name);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ASSERT_TRUE(textIn(name).starts_with(before.substr(0, before.rfind('\n') + 1))) << kill;
        std::filesystem::remove(name);
    }
}

}  // namespace
}  // namespace Orvo::Script
