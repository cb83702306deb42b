#pragma once

#include <array>
#include <memory>
#include <vector>

#include <QMetaMethod>
#include <QObject>

#include "row.h"

// What a call and an event cost elsewhere.
namespace Orvo::Benchmarks {

/// The floor: a virtual call that stores what it is given.
class Stored {
public:
    virtual ~Stored() = default;
    [[nodiscard]] virtual int value() const = 0;
    virtual void store(int index, int value) = 0;
};

std::unique_ptr<Stored> makeStored();

/// The panel's properties as those of a Qt object, which looks for them in this order.
class Properties : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool chkTest MEMBER flag_)
    Q_PROPERTY(bool Connected MEMBER flag_)
    Q_PROPERTY(bool Protection MEMBER flag_)
    Q_PROPERTY(bool Signal MEMBER flag_)
    Q_PROPERTY(int IdDevice MEMBER number_)
    Q_PROPERTY(int VPPower MEMBER number_)
    Q_PROPERTY(int VPAux MEMBER number_)
    Q_PROPERTY(bool Clock MEMBER flag_)
    Q_PROPERTY(bool Ready MEMBER flag_)
    Q_PROPERTY(int VNPower MEMBER number_)
    Q_PROPERTY(int VNAux MEMBER number_)
    Q_PROPERTY(bool PowerOn MEMBER flag_)
    Q_PROPERTY(bool MainPresence MEMBER flag_)
    Q_PROPERTY(int Volume MEMBER number_)
    Q_PROPERTY(int VolumeSlider MEMBER number_)
    Q_PROPERTY(bool VolumeSliderButtonDown MEMBER flag_)
    Q_PROPERTY(int Temperature MEMBER number_)
    Q_PROPERTY(bool TimerVirtualTemp12 MEMBER flag_)
    Q_PROPERTY(bool TimerVirtualTemp34 MEMBER flag_)
    Q_PROPERTY(bool Mute MEMBER flag_)
    Q_PROPERTY(bool ReadOnly MEMBER flag_)

public:
    Q_INVOKABLE [[nodiscard]] int id() const { return number_; }
    Q_INVOKABLE void light(int channel, bool isOn) { lit_[std::size_t(channel & 3)] = isOn; }

    /// One of its methods, found once.
    static QMetaMethod method(const char* signature);

private:
    int number_ = 0;
    bool flag_ = false;
    std::array<bool, 4> lit_{};
};

std::unique_ptr<Properties> makeProperties();

/// A signal with one slot, connected directly.
class Emitter : public QObject {
    Q_OBJECT

public:
    Emitter() { connect(this, &Emitter::moved, this, &Emitter::hear, Qt::DirectConnection); }

signals:
    void moved(int channel, int volume);

private:
    void hear(int channel, int volume) { stored_->store(channel, volume); }

    const std::unique_ptr<Stored> stored_ = makeStored();
};

/// A signal of Boost's with one slot; none when this was built without Boost.
std::vector<Rival> boostSignal(Limits limits);

}  // namespace Orvo::Benchmarks
