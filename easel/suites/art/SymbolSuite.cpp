#include "host/suites/AISymbolSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/document/Attributes.h"
#include "easel/document/HardSoft.h"
#include "easel/document/Placement.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

bool isSymbol(const Definition& definition) {
    return definition.kind() == Definition::Kind::Symbol;
}

const Definition* findSymbol(AIPatternHandle handle) {
    void* found = session().handles.find(HandleKind::Definition, handle);
    const auto* definition = static_cast<const Definition*>(found);
    return definition != nullptr && isSymbol(*definition) ? definition : nullptr;
}

const Definition& symbolOf(AIPatternHandle handle) {
    const Definition* symbol = findSymbol(handle);
    if (symbol == nullptr) throw ai::Error{kBadParameterErr};
    return *symbol;
}

AIPatternHandle handleOf(const Definition* symbol) {
    return symbol != nullptr ? static_cast<AIPatternHandle>(symbol->handle()) : nullptr;
}

Art& instanceOf(AIArtHandle handle) {
    Art& art = artOf(handle);
    if (art.type() != kSymbolArt) throw ai::Error{kBadParameterErr};
    return art;
}

AIErr countSymbolPatterns(ai::int32* count, AIBoolean /*listed*/) {
    required(count) = 0;
    for (const auto& definition : currentDocument().definitions())
        if (isSymbol(*definition)) ++*count;
    return kNoErr;
}

AIErr getNthSymbolPattern(ai::int32 index, AIPatternHandle* symbol, AIBoolean /*listed*/) {
    required(symbol) = nullptr;
    for (const auto& definition : currentDocument().definitions()) {
        if (!isSymbol(*definition) || index-- != 0) continue;
        *symbol = handleOf(definition.get());
        return kNoErr;
    }
    return kBadParameterErr;
}

AIBoolean validateSymbolPattern(AIPatternHandle symbol) {
    return findSymbol(symbol) != nullptr ? 1 : 0;
}

AIErr getSymbolPatternName(AIPatternHandle symbol, ai::UnicodeString& name) {
    writeUtf8(name, symbolOf(symbol).id());
    return kNoErr;
}

AIErr newInstanceWithTransform(AIPatternHandle symbol, AIRealMatrix* matrix, ai::int16 order,
                               AIArtHandle reference, AIArtHandle* made) {
    required(made) = nullptr;
    const Definition& definition = symbolOf(symbol);
    const AIRealMatrix placed = required(matrix);
    const Position place = placeFor(order, reference != nullptr ? &artOf(reference) : nullptr);
    checkPlace(place, kSymbolArt);
    Art& instance = createArt(place.parent->document(), kSymbolArt, place);
    ArtDetails& details = instance.write().details.write();
    details.symbol = &definition;
    details.matrix = placed;
    details.box = definition.box;
    *made = instance.handle();
    return kNoErr;
}

AIErr getSymbolOfArt(AIArtHandle instance, AIPatternHandle* symbol) {
    required(symbol) = handleOf(instanceOf(instance).details().symbol);
    return kNoErr;
}

AIErr setSymbolOfArt(AIArtHandle handle, AIPatternHandle symbol) {
    Art& instance = instanceOf(handle);
    const Definition& definition = symbolOf(symbol);
    checkEditable(instance);
    ArtDetails& details = instance.write().details.write();
    details.symbol = &definition;
    details.box = definition.box;
    return kNoErr;
}

AIErr getSoftTransform(AIArtHandle instance, AIRealMatrix* matrix) {
    required(matrix) = instanceOf(instance).details().matrix;
    return kNoErr;
}

AIErr setSoftTransform(AIArtHandle handle, AIRealMatrix* matrix) {
    const AIRealMatrix wanted = required(matrix);
    Art& instance = instanceOf(handle);
    checkEditable(instance);
    instance.write().details.write().matrix = wanted;
    return kNoErr;
}

AIErr getHardTransform(AIArtHandle handle, AIRealMatrix* matrix) {
    const Art& instance = instanceOf(handle);
    required(matrix) = hardMatrix(instance.document(), instance.details().matrix);
    return kNoErr;
}

AIErr setHardTransform(AIArtHandle handle, AIRealMatrix* matrix) {
    AIRealMatrix soft = softMatrix(instanceOf(handle).document(), required(matrix));
    return setSoftTransform(handle, &soft);
}

} // namespace

void installSymbolSuite(SuiteServer& server) {
    using S = AISymbolSuite;
    auto table = server.table<S>(kAISymbolSuite, kAISymbolSuiteVersion);
    expose<&S::CountSymbolPatterns, countSymbolPatterns>(table);
    expose<&S::GetNthSymbolPattern, getNthSymbolPattern>(table);
    expose<&S::ValidateSymbolPattern, validateSymbolPattern>(table);
    expose<&S::GetSymbolPatternName, getSymbolPatternName>(table);
    expose<&S::NewInstanceWithTransform, newInstanceWithTransform>(table);
    expose<&S::GetSymbolPatternOfSymbolArt, getSymbolOfArt>(table);
    expose<&S::SetSymbolPatternOfSymbolArt, setSymbolOfArt>(table);
    expose<&S::GetHardTransformOfSymbolArt, getHardTransform>(table);
    expose<&S::SetHardTransformOfSymbolArt, setHardTransform>(table);
    expose<&S::GetSoftTransformOfSymbolArt, getSoftTransform>(table);
    expose<&S::SetSoftTransformOfSymbolArt, setSoftTransform>(table);
}

} // namespace easel
