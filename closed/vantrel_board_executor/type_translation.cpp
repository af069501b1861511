#include "vtlcmd/host/imports/vantrel_executor.h"

namespace VantrelGraph::Executor {

TypeTranslation::TypeTranslation() = default;

TypeTranslation::~TypeTranslation() = default;

// A translation is known by its type names; the executor adds no type handles of its own.
void TypeTranslation::getSupportedTypes(const Orvel::Library&,
                                        Orvel::EntityIndexedList<const Orvel::Type>&) const {}

bool TypeTranslation::portAdded(const Orvel::String&, PortDirection, const Orvel::Type&,
                                const Orvel::Metadata&, PortClass, PortData*) const {
  return true;
}

bool TypeTranslation::portRemoved(const Orvel::String&, const Orvel::String&) const { return true; }

bool TypeTranslation::portRenamed(const Orvel::String&, const Orvel::String&,
                                  const Orvel::String&) const {
  return true;
}

bool TypeTranslation::registerHostPlugins(const PluginHostData*) const { return true; }

bool TypeTranslation::unregisterHostPlugins(const PluginHostData*) const { return true; }

// NOLINTNEXTLINE(modernize-pass-by-value): the signature is the border
TypeTranslationPreview::TypeTranslationPreview(const Orvel::String& name) : name_(name) {}

TypeTranslationPreview::~TypeTranslationPreview() = default;

}  // namespace VantrelGraph::Executor
