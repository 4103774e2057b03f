#pragma once

#include "host/Types.h"
#include "tool/Licensing.h"

namespace facetta {

/// Everything the host says to the plug-in. In this order:
///
///   1. The basic suite of the message is stored; the plug-in object comes from its `globals`.
///   2. "SP Interface" starts the plug-in (making the object) or shuts it down (ending it).
///   3. A reload before start-up is the licence's business.
///   4. The object, if there is one, is lent the licence and gets the message: a reload at once,
///      anything else only while it has its suites. A reload that was refused them is tried once
///      more first.
///   5. A failure is reported to the user.
///
/// A message that nobody handles is answered with success. No exception leaves here: this is the
/// one place where it becomes a code.
///
/// `licensing` lives as long as the library is loaded.
SPErr handleMessage(const Licensing& licensing, const char* caller, const char* selector,
                    void* message) noexcept;

} // namespace facetta
