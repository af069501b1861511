#include "nodes/families.h"
#include "nodes/operand.h"

namespace vtlcmd::runner::node_families {
namespace {

using Vantrel::File::Project::SceneInfo;
using Vantrel::Simulation::Time;

template <typename Record, typename T>
T typeOfMember(T Record::*);

template <auto Member>
using MemberType = decltype(typeOfMember(Member));

template <auto Member>
ValueType memberType(const NodeTypes&) {
  return {valueType<MemberType<Member>>().name, 0};
}

template <typename Record, auto Member>
Orvel::Value memberOf(const NodeCall& call) {
  return Orvel::makeValue<MemberType<Member>>(Orvel::valueAs<Record>(call[0]).*Member);
}

template <auto Member>
NodeOperation timeNode(std::string_view name, std::string_view help) {
  return {name,
          {{"time", &type_classes::time}},
          NodeSetting::none,
          memberType<Member>,
          memberOf<Time, Member>,
          help};
}

template <auto Member>
NodeOperation sceneNode(std::string_view name, std::string_view help) {
  return {name,
          {{"scene", &type_classes::sceneInfo}},
          NodeSetting::none,
          memberType<Member>,
          memberOf<SceneInfo, Member>,
          help};
}

const NodeOperation runFactOperations[] = {
    timeNode<&Time::mode>("time_mode", "The mode of a time."),
    timeNode<&Time::time>("time_seconds", "The seconds of a time."),
    timeNode<&Time::frame>("time_frame", "The frame number of a time."),
    timeNode<&Time::frameLength>("time_frame_length", "The seconds that one frame takes."),
    sceneNode<&SceneInfo::fileName>("scene_file_name", "The name of the scene file."),
    sceneNode<&SceneInfo::directory>("scene_directory",
                                     "The folder of the scene file, with its last separator."),
    sceneNode<&SceneInfo::secondaryPath>("scene_secondary_path", "The secondary path."),
    sceneNode<&SceneInfo::hasSecondaryPath>("scene_has_secondary_path",
                                            "Whether there is a secondary path."),
};

}  // namespace

std::span<const NodeOperation> runFacts() { return runFactOperations; }

}  // namespace vtlcmd::runner::node_families
