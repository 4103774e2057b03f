#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIUndoSuite[] = "AI Undo Suite";
inline constexpr ai::int32 kAIUndoSuiteVersion = 6;

struct AIUndoSuite {
    /// The whole texts of the menu items, for the step being recorded.
    AIErr (*SetUndoTextUS)(const ai::UnicodeString& undo, const ai::UnicodeString& redo);
    /// Takes back what the current context has changed; what it made is gone.
    AIErr (*UndoChanges)();
    ReservedSlot SetActionPaletteUndo;
    AIErr (*PurgeAllUndos)();
    /// Only in a context that is not nested, as `SetKind`.
    AIErr (*SetSilent)(AIBoolean silent);
    /// 0 a step of its own, 1 silent, 2 joined to the step before.
    AIErr (*SetKind)(ai::int32 kind);
    AIErr (*SetTag)(char*, ai::int32);
    /// Steps that can be undone and redone; either may be null.
    AIErr (*CountTransactions)(ai::int32* past, ai::int32* future);
    AIErr (*GetNthTransactionTag)(ai::int32, char**, ai::int32*);
    AIErr (*IsSilent)(AIBoolean*);
    AIErr (*SetTagUS)(const ai::UnicodeString&, ai::int32);
    AIErr (*GetNthTransactionTagUS)(ai::int32, ai::UnicodeString&, ai::int32*);
};

template <>
struct ai::SuiteId<AIUndoSuite> : ai::SuiteIdentity<kAIUndoSuite, kAIUndoSuiteVersion> {};
