#pragma once

#include <array>

constexpr int kNumVerticalMarkers = 4;
/// The markers lie between the phases of a cycle.
constexpr int kNumCyclePhases = kNumVerticalMarkers + 1;

/// Positions of the vertical markers as sample indices, never negative, in non-decreasing order.
using VerticalMarkers = std::array<int, kNumVerticalMarkers>;

/// Moves one marker to a position; a negative one counts as 0. Following markers that would lie below it are raised
/// to it, preceding ones that would lie above it are lowered to it. An index outside 0 to 3 changes nothing.
[[nodiscard]] VerticalMarkers withMarkerAt(VerticalMarkers markers, int index, int position);

/// Moves one marker to a distance from its predecessor (the first one: to a position) and shifts all markers behind
/// it by the same amount. A negative distance counts as 0; positions end at the largest int.
[[nodiscard]] VerticalMarkers withMarkerDistance(VerticalMarkers markers, int index, int distance);
