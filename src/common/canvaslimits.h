#pragma once

// Canvas pixels.
constexpr int kMaxCanvasWidth = 32768;
constexpr int kMaxCanvasHeight = 16384;
constexpr int kMaxCabinetSize = 1024;

constexpr int kMaxPorts = 160;          ///< output ports of a sender
constexpr int kMaxTilesOfPort = 262144; ///< cabinets
constexpr int kMaxReceiversInTile = 10; ///< receiving cards inside one cabinet
