#include "toolkit/ImplCommon/Resources.h"

#include "resources/Embedded.h"

#include <array>

namespace NRDM {
namespace {

/// The types of `ResourceKind`, in its order.
const std::array<ResourceName, 6> kTypes{4, 6, u"NREV", u"PNGI", u"PNG3", u"XML_"};

} // namespace

Bytes findResource(SPPlatformAccessRef, ResourceKind kind, int id) {
    const ResourceName& type = kTypes.at(static_cast<std::size_t>(kind));
    ResourceFile file(facetta::embeddedResources());
    while (const auto resource = file.next())
        if (resource->type == type && resource->name == ResourceName(id)) return resource->data;
    return {};
}

} // namespace NRDM
