#pragma once

#include <QString>

// What is measured, in words; with a point in every locale.
namespace Orvo::Window {

/// "12.4 V": a scope's samples tell no more.
QString inVolts(double volts);

/// "1.00 kHz", "250 µs": three digits and the prefix that suits them, nano to giga.
QString withUnit(double value, const QString& unit);

}  // namespace Orvo::Window
