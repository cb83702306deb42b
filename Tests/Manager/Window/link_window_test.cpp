#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Manager/Window/manager_window.h"
#include "Orvo/core/member_table.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Script/text_of.h"
#include "Support/loopback_port.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

/// A window whose link is a pipe from this test.
class LinkWindowTest : public testing::Test {
protected:
    void connect(ManagerWindow& window) {
        ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
        window.connectLink(LinkAddress{path_});
        window.session().letPass(25ms);
        pipe_ = ::open(path_.c_str(), O_WRONLY | O_NONBLOCK);
    }
    ~LinkWindowTest() override { ::close(pipe_); }

    void say(ManagerWindow& window, const std::string& text) const {
        ASSERT_EQ(::write(pipe_, text.data(), text.size()), ssize_t(text.size()));
        for (int i = 0; i < 20; ++i) window.session().letPass(25ms);
    }

    Tests::TemporaryDirectory directory_;
    std::string path_ = directory_.path() / "link";
    int pipe_ = -1;
};

TEST_F(LinkWindowTest, NoMemberMakesTheMachineConnectAnywhere) {
    const Tests::LoopbackPort server;
    server.listen();
    std::string script = "call GetAvailablePorts \"" + server.address() + "\"\n";
    for (const Member& member : kMembers) {
        script += "invoke " + std::to_string(member.dispatchId) + ' ';
        script += member.kind == MemberKind::method ? "call" : Script::nameOf(member.kind);
        for (std::size_t i = 0; i < member.parameterCount; ++i) {
            script += " \"" + server.address() + '"';
        }
        script += '\n';
    }
    ManagerWindow window;
    connect(window);
    say(window, script + "let Connected -1\n");
    EXPECT_LT(server.accept(0ms), 0);
    const auto& lamp =
        window.panelWidget().store().get<Runtime::StoredShape>(Layout::kCommon.linkLamp);
    EXPECT_TRUE(lamp.state().isLit()) << "all has been heard";
}

TEST_F(LinkWindowTest, WhatThePersonHasMadeReadOnlyStaysSo) {
    ManagerWindow window;
    connect(window);
    for (const bool isLocked : {true, false, true}) {
        window.session().setReadOnly(isLocked);
        say(window, "new\nlet ReadOnly 1\nlet ReadOnly 0\n");
        EXPECT_EQ(window.panelWidget().panel().ReadOnly(), Boolean(isLocked));
    }
}

}  // namespace
}  // namespace Orvo::Manager
