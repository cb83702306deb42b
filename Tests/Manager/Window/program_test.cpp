#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>

#include "Orvo/store/store.h"
#include "Support/approved.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

struct Outcome {
    int status = -1;
    QString out;
    QString error;
};

class ProgramTest : public testing::Test {
protected:
    // Runs the program as on a machine that has no display.
    [[nodiscard]] Outcome run(const QStringList& words) const {
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* name :
             {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"}) {
            environment.remove(name);
        }
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(QString::fromStdString(directory_.path()));
        program.start(MANAGER_PROGRAM, words);
        const bool hasEnded = program.waitForFinished(60'000);
        if (!hasEnded || program.exitStatus() != QProcess::NormalExit) return {};
        return {program.exitCode(), program.readAllStandardOutput(),
                program.readAllStandardError()};
    }

    Tests::TemporaryDirectory directory_;
};

TEST_F(ProgramTest, WithoutADisplayItLeavesAPictureOfEachTab) {
    directory_.add({"build/"});
    const Outcome outcome = run({"--zoom", "50"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.error, "");
    QStringList lines = outcome.out.trimmed().split('\n');
    EXPECT_TRUE(lines.takeFirst().contains("no display"));
    ASSERT_EQ(lines.size(), 3) << outcome.out.toStdString();
    EXPECT_EQ(QStringList(lines).removeDuplicates(), 0);
    for (const QString& line : lines) {
        EXPECT_TRUE(line.startsWith(QString::fromStdString(directory_.path() / "build/")));
        EXPECT_EQ(QImage(line).size(), QSize(355, 230)) << line.toStdString();
    }
}

TEST_F(ProgramTest, ARecordedDemonstrationIsRepeatedAlike) {
    directory_.add({"build/"});
    ASSERT_EQ(run({"--record", "session.txt", "--zoom", "50"}).status, 0);
    const Outcome outcome = run({"--script", "session.txt"});
    EXPECT_EQ(outcome.status, 0) << outcome.error.toStdString();
    for (const char* line : {"event OnOff\n", "event WaveForm 1 1 1\n", "event WaveForm 3 1 1\n"}) {
        EXPECT_EQ(outcome.out.count(line), 1) << line;
    }
    EXPECT_FALSE(outcome.out.contains("\n!"));
    QProcess console;
    console.start(CONSOLE_PROGRAM, {QString::fromStdString(directory_.path() / "session.txt")});
    EXPECT_TRUE(console.waitForFinished());
    EXPECT_EQ(QString(console.readAllStandardOutput()), outcome.out);
}

TEST_F(ProgramTest, WhatCannotBeUnderstoodReadOrWrittenEndsIt) {
    EXPECT_EQ(run({"--zoom", "wide"}).status, 2);
    const Outcome script = run({"--script", "no such file"});
    EXPECT_EQ(script.status, 2);
    EXPECT_TRUE(script.error.contains("no such file"));
    const Outcome record = run({"--record", "no/such/directory"});
    EXPECT_NE(record.status, 0);
    EXPECT_TRUE(record.error.contains("no/such/directory"));
    EXPECT_EQ(run({"--script", "."}).error, "marvane-manager: .: Is a directory\n");
}

TEST_F(ProgramTest, OverwritesNoFileUnasked) {
    directory_.add({"there.png = kept", "script = shot there.png\n", "target = kept",
                    "build/marvane-common.png -> target"});
    const auto kept = [this](const char* file) {
        return Tests::textIn(directory_.path() / file) == "kept";
    };
    EXPECT_EQ(run({"--record", "there.png"}).error,
              "marvane-manager: there.png: File exists (--overwrite replaces it)\n");
    EXPECT_EQ(run({"--script", "script"}).out, "! 58 File already exists\n");
    EXPECT_TRUE(kept("there.png"));
    EXPECT_EQ(run({"--script", "script", "--overwrite"}).out, "ok\n");
    EXPECT_FALSE(kept("there.png"));
    EXPECT_TRUE(run({}).error.contains("marvane-common.png: Symbolic links are not followed"));
    EXPECT_TRUE(kept("target"));
}

TEST_F(ProgramTest, AComplaintEndsAScriptWithItsPlace) {
    directory_.add({"script = get Mute 1\njump\nget Mute 1\n"});
    const Outcome outcome = run({"--script", "script"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out.count("= 0"), 1);
    EXPECT_TRUE(outcome.error.contains("script:2:1: "));
    EXPECT_EQ(run({"--script", "script", "--keep-going"}).out.count("= 0"), 2);
}

TEST_F(ProgramTest, VersionGoesToStandardOutput) {
    const Outcome outcome = run({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.startsWith("marvane-manager "));
}

}  // namespace
}  // namespace Orvo::Manager
