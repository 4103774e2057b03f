#pragma once

#include "host/Types.h"

inline constexpr char kAIUndoSuite[] = "AI Undo Suite";
inline constexpr ai::int32 kAIUndoSuiteVersion = 6;

struct AIUndoSuite {
    AIErr (*SetUndoTextUS)(const ai::UnicodeString&, const ai::UnicodeString&);
    AIErr (*UndoChanges)();
    AIErr (*SetActionPaletteUndo)();
    AIErr (*PurgeAllUndos)();
    AIErr (*SetSilent)(AIBoolean);
    AIErr (*SetKind)(ai::int32);
    AIErr (*SetTag)(char*, ai::int32);
    AIErr (*CountTransactions)(ai::int32*, ai::int32*);
    AIErr (*GetNthTransactionTag)(ai::int32, char**, ai::int32*);
    AIErr (*IsSilent)(AIBoolean*);
    AIErr (*SetTagUS)(const ai::UnicodeString&, ai::int32);
    AIErr (*GetNthTransactionTagUS)(ai::int32, ai::UnicodeString&, ai::int32*);
};
