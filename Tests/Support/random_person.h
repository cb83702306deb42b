#pragma once

#include <functional>

#include <QDialog>
#include <QObject>
#include <QWidget>

#include "Support/chance.h"
#include "Support/hostile_texts.h"

namespace Orvo::Tests {

/// So many deeds, with a look now and then at what has come of them. False at the first failure.
bool liveOn(int deeds, int deedsBetweenLooks, const std::function<void()>& act,
            const std::function<void()>& look);

/// A person who does whatever comes to mind, with mouse and keys as the window system tells of
/// them, in the window in front; and sooner or later answers every dialog.
class RandomPerson final : public QObject {
public:
    /// `meanwhile` is what may happen while a dialog or a menu is open.
    RandomPerson(Chance& chance, std::function<void()> meanwhile);

    /// One deed. Afterwards the window may be gone.
    void act(QWidget& window);

    /// A text of the kind that somebody types, or that nobody should.
    QString text();
    /// The files that the person has.
    [[nodiscard]] QString file(const QString& name) const;

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    void actInTheMidst();
    void answer(QDialog& dialog);
    void useMouse(QWidget& window);
    void rollWheel(QWidget& window);
    void rest(QWidget& window);
    void useKeys(QWidget& window);
    QPoint pointIn(const QWidget& window);

    Chance& chance_;
    const std::function<void()> meanwhile_;
    const TrappedFile trap_;
    const std::vector<HostileText> hostile_ = hostileTexts(trap_);
    TemporaryDirectory directory_;
    int depth_ = 0;
};

}  // namespace Orvo::Tests
