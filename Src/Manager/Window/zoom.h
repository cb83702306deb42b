#pragma once

// The sizes of the panel, in percent.
namespace Orvo::Manager {

constexpr int kSmallestZoom = 50;
constexpr int kLargestZoom = 800;
constexpr int kPlainZoom = 100;

/// The next size that the zoom keys stop at; the end when there is none.
int nextLarger(int zoom);
int nextSmaller(int zoom);

}  // namespace Orvo::Manager
