#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

#include <array>

inline constexpr char kAIModalParentSuite[] = "AI Modal Parent Suite";
inline constexpr ai::int32 kAIModalParentSuiteVersion = 1;
/// A newer version, numbered anew because of reals, of which this suite has none.
inline constexpr std::array<ai::int32, 1> kAIModalParentSuiteFallbacks{2};

/// The window that owns what the host shows above a modal window of the plug-in's.
struct AIModalParentSuite {
    /// The host shows its own boxes above `window` until `RemoveParent`.
    AIErr (*SetParent)(const AIPlatformWindow& window);
    AIErr (*RemoveParent)();
};

template <>
struct ai::SuiteId<AIModalParentSuite>
    : ai::SuiteIdentity<kAIModalParentSuite, kAIModalParentSuiteVersion,
                        kAIModalParentSuiteFallbacks> {};
