#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>

#include "Runtime/Store/store.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

struct Outcome {
    int status = -1;
    QString out;
    QString error;
};

// Runs the program as on a machine that has no display.
Outcome run(const QStringList& words, const std::string& directory) {
    QProcess program;
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(name);
    }
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(QString::fromStdString(directory));
    program.start(MANAGER_PROGRAM, words);
    if (!program.waitForFinished(60'000) || program.exitStatus() != QProcess::NormalExit) return {};
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

class ProgramTest : public testing::Test {
protected:
    Outcome run(const QStringList& words) { return Manager::run(words, directory_.path()); }

    Tests::TemporaryDirectory directory_;
};

TEST_F(ProgramTest, WithoutADisplayItLeavesAPictureOfEachTab) {
    directory_.add({"build/"});
    const Outcome outcome = run({"--zoom", "50"});
    EXPECT_EQ(outcome.status, 0) << outcome.error.toStdString();
    QStringList lines = outcome.out.trimmed().split('\n');
    EXPECT_TRUE(lines.takeFirst().contains("no display"));
    ASSERT_EQ(lines.size(), 3) << outcome.out.toStdString();
    EXPECT_EQ(QStringList(lines).removeDuplicates(), 0);
    for (const QString& line : lines) {
        EXPECT_TRUE(line.startsWith(QString::fromStdString(directory_.path() / "build/")));
        EXPECT_EQ(QImage(line).size(), QSize(355, 230)) << line.toStdString();
    }
}

TEST_F(ProgramTest, AWrongOptionEndsItWithStatusTwo) {
    const Outcome outcome = run({"--zoom", "wide"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.error.contains("from 50 to 800, not \"wide\""));
}

TEST_F(ProgramTest, VersionGoesToStandardOutput) {
    const Outcome outcome = run({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.startsWith("marvane-manager "));
}

}  // namespace
}  // namespace Orvo::Manager
