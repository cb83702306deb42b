#pragma once

#include <optional>

#include <QByteArray>
#include <QSettings>
#include <QStringList>

#include "Manager/Station/conversation.h"
#include "Manager/Window/frame_palette.h"

namespace Orvo::Manager {

constexpr qsizetype kMostLastLinks = 8;

/// What is remembered of a person's choices from one start to the next.
struct Choices {
    QByteArray geometry{};      ///< of the window; empty: there is none yet
    QByteArray docks{};         ///< where they are, and which are shown
    QByteArray scopes{};        ///< the geometry of the scopes' window
    bool hasScopes = false;     ///< whether that is shown
    std::optional<int> zoom{};  ///< percent; none: as fits the window
    int tab = 1;                ///< counted from 1
    QStringList links{};        ///< the last ones, the last one first
    Detail detail = Detail::changes;
    Form form = Form::words;
    Frame frame = Frame::dark;
};

/// What isn't there, or isn't valid, is as at the first start.
Choices choicesIn(const QSettings& settings);

void keep(const Choices& choices, QSettings& settings);

}  // namespace Orvo::Manager
