#include "Manager/Window/demonstration.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>

#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "Manager/Window/files.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/pictures.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/shown.h"
#include "Orvo/store/store.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 10s;
constexpr auto kPlays = 1500ms;
constexpr auto kPictures =
    std::to_array({"marvane-common.png", "marvane-ch1-ch2.png", "marvane-ch3-ch4.png"});

void say(const QString& line) {
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

// Not everybody can put something there.
bool isOurs(const QFileInfo& directory) {
    return directory.isDir() && !directory.isSymLink() && directory.ownerId() == ::geteuid() &&
           !directory.permission(QFile::WriteOther);
}

// Where whoever built the program finds them, else where nobody has to clean up, in a directory
// that nobody else has made. A link may lead to another's files.
QDir pictureDirectory() {
    const QFileInfo build("build");
    if (isOurs(build) && isOurs(QFileInfo("."))) return {build.filePath()};
    QTemporaryDir fresh(QDir::tempPath() + "/marvane-manager-XXXXXX");
    fresh.setAutoRemove(false);
    if (!fresh.isValid()) throw std::runtime_error(fresh.errorString().toStdString());
    return {fresh.path()};
}

class Demonstration {
    Q_DECLARE_TR_FUNCTIONS(Orvo::Manager::Demonstration)

public:
    explicit Demonstration(const Options& options) : window_(options) {
        window_.setZoom(options.zoom.value_or(kPlainZoom));
    }

    void run();

private:
    void comeUp();
    void switchOn();
    void play();
    void savePictures();

    void waitFor(const QString& what, const std::function<bool()>& isDone);
    void letPass(std::chrono::milliseconds time);
    [[nodiscard]] bool isLit(Widgets::ShapeRef lamp);
    void click(Widgets::ButtonRef button) { store().perform(Runtime::Deed::click(button)); }
    Runtime::Store& store() { return window_.panelWidget().store(); }

    ManagerWindow window_;
};

void Demonstration::run() {
    const bool isOperated = !window_.session().isReadOnly();
    window_.session().connectSimulator(isOperated ? Simulator::PowerAtStart::off
                                                  : Simulator::PowerAtStart::on);
    window_.open();
    comeUp();
    if (isOperated) switchOn();
    if (isOperated) play();
    letPass(kPlays);
    savePictures();
    if (const auto reason = window_.session().endRecording()) throw std::runtime_error(*reason);
}

void Demonstration::comeUp() {
    waitFor(tr("the link"), [this] { return isLit(Layout::kCommon.linkLamp); });
    waitFor(tr("the mains"), [this] { return isLit(Layout::pair(1).mainsLamp); });
}

void Demonstration::switchOn() {
    click(Layout::kCommon.powerButton);
    waitFor(tr("the power"), [this] { return isLit(Layout::kCommon.powerLamp); });
    for (const auto& pair : Layout::kPairs) {
        waitFor(tr("both pairs to be ready"), [&] { return isLit(pair.readyLamp); });
    }
}

void Demonstration::play() {
    for (const auto& pair : Layout::kPairs) click(pair.startButton);
    waitFor(tr("the traces"), [this] {
        return window_.session().station().traces().has(1) &&
               window_.session().station().traces().has(3);
    });
}

void Demonstration::savePictures() {
    const QDir directory = pictureDirectory();
    for (std::size_t tab = 0; tab < kPictures.size(); ++tab) {
        window_.selectTab(int(tab) + 1);
        const QString path = directory.absoluteFilePath(kPictures[tab]);
        write(path, toPng(pictureOf(window_.panelWidget())), Script::Existing::overwritten);
        say(path);
    }
}

void Demonstration::waitFor(const QString& what, const std::function<bool()>& isDone) {
    const QDeadlineTimer deadline(kPatience);
    while (!isDone()) {
        if (deadline.hasExpired())
            throw std::runtime_error(tr("waited in vain for %1").arg(what).toStdString());
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void Demonstration::letPass(std::chrono::milliseconds time) {
    const QDeadlineTimer end(time);
    waitFor(tr("the time to pass"), [&] { return end.hasExpired(); });
}

bool Demonstration::isLit(Widgets::ShapeRef lamp) { return Runtime::isLit(store(), lamp); }

}  // namespace

int demonstrate(const Options& options) {
    say("marvane-manager: " +
        Demonstration::tr("no display here, so a short demonstration runs offscreen. Pictures:"));
    try {
        Demonstration(options).run();
        return 0;
    } catch (const std::runtime_error& error) {
        return complain(error);
    }
}

}  // namespace Orvo::Manager
