#pragma once

#include "Simulator/figures.h"

namespace Orvo::Simulator {

/// One supply rail: it rises no faster than its soft start lets it, sags under load, and
/// discharges through its bleeder and its load when the source is gone.
class Rail {
public:
    struct Make {
        double nominal;  ///< volts
        double rise;     ///< volts per second
        double bleed;    ///< seconds
        double resistance;
        double capacitance;
    };

    explicit Rail(const Make& make) : make_(make) {}

    /// Lets one step pass. `source` is the share of the nominal voltage that feeds the rail, 0 for
    /// none; `amperes` is what is drawn of it.
    void step(double source, double amperes);

    /// The magnitude.
    [[nodiscard]] double volts() const { return volts_; }
    /// Of the nominal voltage.
    [[nodiscard]] double share() const { return volts_ / make_.nominal; }

private:
    void charge(double target);
    void discharge(double amperes);

    Make make_;
    double volts_ = 0;
};

struct Rails {
    Rail positivePower;
    Rail negativePower;
    Rail positiveAux;
    Rail negativeAux;
};

/// The four rails of a pair. The auxiliary ones are there with the mains, the power rails once
/// they are connected too.
class PowerSupply {
public:
    /// Lets one step pass. `mains` is the share of the nominal mains voltage; the amperes are what
    /// is drawn of each power rail and of each auxiliary rail.
    void step(double mains, bool isConnected, double powerAmperes, double auxAmperes);

    /// Ready lasts until a rail has fallen well below where it began.
    [[nodiscard]] bool isReady() const { return isReady_; }
    [[nodiscard]] bool hasAux() const;
    [[nodiscard]] const Rails& rails() const { return rails_; }

private:
    static Rails makeRails();

    Rails rails_ = makeRails();
    bool isReady_ = false;
};

}  // namespace Orvo::Simulator
