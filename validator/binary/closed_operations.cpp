#include "binary/closed_operations.h"

#include <algorithm>
#include <array>

namespace vtlcmd::validator {
namespace {

/// Ordered by class.
constexpr std::array<std::string_view, 73> operations{
    // clang-format off
    "Orvel::ArrayType::ArrayType(Orvel::Type const&)",
    "Orvel::ArrayType::getElementType() const",
    "Orvel::ArrayType::~ArrayType()",
    "Orvel::ArrayValue::ArrayValue(Orvel::Value const&)",
    "Orvel::ArrayValue::getElement(unsigned long)",
    "Orvel::ArrayValue::size() const",
    "Orvel::ArrayValue::~ArrayValue()",
    "Orvel::BidirectionalIterator<Orvel::StructType::Member>::BidirectionalIterator(Orvel::BidirectionalIterator<Orvel::StructType::Member> const&)",
    "Orvel::BidirectionalIterator<Orvel::StructType::Member>::~BidirectionalIterator()",
    "Orvel::ForwardIterator<Orvel::StructType::Member>::operator++(int)",
    "Orvel::ForwardIterator<Orvel::StructType::Member>::~ForwardIterator()",
    "Orvel::Internal::TypeInfo::s_void",
    "Orvel::Internal::UntypedTypeRep::allocate(unsigned long) const",
    "Orvel::Internal::UntypedTypeRep::deallocate(void*, unsigned long) const",
    "Orvel::Iterator<Orvel::StructType::Member>::operator!=(Orvel::Iterator<Orvel::StructType::Member> const&) const",
    "Orvel::Iterator<Orvel::StructType::Member>::operator->() const",
    "Orvel::NamedEntity::getFullyQualifiedName() const",
    "Orvel::String::String()",
    "Orvel::String::String(Orvel::String const&)",
    "Orvel::String::String(Orvel::String&&)",
    "Orvel::String::String(char const*)",
    "Orvel::String::c_str() const",
    "Orvel::String::compare(Orvel::String const&) const",
    "Orvel::String::internal_string_view() const",
    "Orvel::String::operator=(Orvel::String const&)",
    "Orvel::String::operator=(Orvel::String&&)",
    "Orvel::String::operator=(char const*)",
    "Orvel::String::operator==(Orvel::String const&) const",
    "Orvel::String::operator==(char const*) const",
    "Orvel::String::~String()",
    "Orvel::StructType::Member::getName() const",
    "Orvel::StructType::begin() const",
    "Orvel::StructType::end() const",
    "Orvel::StructType::~StructType()",
    "Orvel::StructValue::Member::~Member()",
    "Orvel::StructValue::StructValue(Orvel::Value const&)",
    "Orvel::StructValue::getType() const",
    "Orvel::StructValue::operator[](Orvel::String const&) const",
    "Orvel::StructValue::~StructValue()",
    "Orvel::Type::getTypeKind() const",
    "Orvel::Type::operator=(Orvel::Type const&)",
    "Orvel::Type::~Type()",
    "Orvel::Value::getBool() const",
    "Orvel::Value::getDouble() const",
    "Orvel::Value::getFloat() const",
    "Orvel::Value::getInt() const",
    "Orvel::Value::getLong() const",
    "Orvel::Value::getOpaqueArray() const",
    "Orvel::Value::getOrvelClass() const",
    "Orvel::Value::getString() const",
    "Orvel::Value::getType() const",
    "Orvel::Value::getUInt() const",
    "Orvel::Value::getULong() const",
    "Orvel::Value::~Value()",
    "Orvel::operator+(Orvel::String const&, Orvel::String const&)",
    "Orvel::operator+(Orvel::String const&, char const*)",
    "Vantrel::Geometry::getComponentGeoPropPrototype()",
    "Vantrel::Geometry::getDataGeoPropPrototype(Orvel::StringView)",
    "Vantrel::Geometry::getDataGeoProperty(Vantrel::Object const&, Orvel::StringView)",
    "Vantrel::Geometry::getElementCount(Vantrel::Object const&, Orvel::StringView)",
    "Vantrel::Geometry::getGeoPropNamesByPrototype(Vantrel::Object const&, Vantrel::Object const&)",
    "Vantrel::Geometry::sData",
    "Vantrel::Geometry::sGenericDataGeoProp",
    "Vantrel::createObject()",
    "VantrelGraph::Executor::TypeTranslation::getSupportedTypes(Orvel::Library const&, Orvel::EntityIndexedList<Orvel::Type const>&) const",
    "VantrelGraph::Executor::TypeTranslation::portAdded(Orvel::String const&, VantrelGraph::Executor::TypeTranslation::PortDirection, Orvel::Type const&, Orvel::Metadata const&, VantrelGraph::Executor::TypeTranslation::PortClass, VantrelGraph::Executor::TypeTranslation::PortData*) const",
    "VantrelGraph::Executor::TypeTranslation::portRemoved(Orvel::String const&, Orvel::String const&) const",
    "VantrelGraph::Executor::TypeTranslation::portRenamed(Orvel::String const&, Orvel::String const&, Orvel::String const&) const",
    "VantrelGraph::Executor::TypeTranslation::registerHostPlugins(VantrelGraph::Executor::TypeTranslation::PluginHostData const*) const",
    "VantrelGraph::Executor::TypeTranslation::unregisterHostPlugins(VantrelGraph::Executor::TypeTranslation::PluginHostData const*) const",
    "VantrelGraph::Executor::TypeTranslationPreview::TypeTranslationPreview(Orvel::String const&)",
    "VantrelGraph::Executor::TypeTranslationPreview::~TypeTranslationPreview()",
    "typeinfo for VantrelGraph::Executor::TypeTranslationPreview",
    // clang-format on
};

}  // namespace

bool isClosedOperation(std::string_view name) {
  return std::find(operations.begin(), operations.end(), name) != operations.end();
}

}  // namespace vtlcmd::validator
