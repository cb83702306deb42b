#pragma once

#include "Manager/Session/manager_session.h"
#include "Support/owned_panel.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {

using namespace std::chrono_literals;
using namespace Tests;

/// A session, what it tells, and a place for its files.
class SessionBench : public OwnedPanel, public SessionObserver {
protected:
    void begin(const SessionSettings& settings = {}) {
        session_.reset();
        owner_.renew();
        session_.emplace(owner_, owner_, settings, *this);
    }

    void say(const std::string& message) override { said_ = message; }
    void warn(const Failure& failure) override { warnings_.push_back(failure.details); }
    void recordingStopped(const Failure& failure) override { warn(failure); }

    TemporaryDirectory directory_;
    std::string file_ = directory_.path() / "session.txt";
    std::vector<std::string> warnings_;
    std::string said_;
    std::optional<ManagerSession> session_{std::in_place, owner_, owner_, SessionSettings{}, *this};
};

}  // namespace Orvo::Manager
