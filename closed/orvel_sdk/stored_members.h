#pragma once

#include <array>
#include <cstddef>

#include "vtlcmd/stand_in/stored_types.h"

namespace Orvel::Internal {

struct StoredMember {
  const char* name;
  /// Place in `storedTypes`.
  std::size_t type;
  /// In bytes.
  std::size_t offset;
};

/// The members of a stored type that is a struct; no other stored type has a specialisation.
template <typename T>
struct StoredMembers;

template <typename T>
concept StoredStruct = requires {
  StoredMembers<T>::rows;
};

inline constexpr std::array<const char*, 4> vectorMemberNames{"x", "y", "z", "w"};

inline constexpr std::array<std::array<const char*, 4>, 4> matrixMemberNames{{
    {"r0c0", "r0c1", "r0c2", "r0c3"},
    {"r1c0", "r1c1", "r1c2", "r1c3"},
    {"r2c0", "r2c1", "r2c2", "r2c3"},
    {"r3c0", "r3c1", "r3c2", "r3c3"},
}};

template <typename Component, std::size_t Count>
struct StoredMembers<Vantrel::Math::Vector<Component, Count>> {
  static constexpr auto rows = [] {
    std::array<StoredMember, Count> members{};
    for (std::size_t i = 0; i < Count; ++i) {
      members[i] = {vectorMemberNames[i], storedTypeIndex<Component>(), i * sizeof(Component)};
    }
    return members;
  }();
};

template <typename Component, std::size_t Rows, std::size_t Columns>
struct StoredMembers<Vantrel::Math::Matrix<Component, Rows, Columns>> {
  static constexpr auto rows = [] {
    std::array<StoredMember, Rows * Columns> members{};
    for (std::size_t i = 0; i < members.size(); ++i) {
      members[i] = {matrixMemberNames[i / Columns][i % Columns], storedTypeIndex<Component>(),
                    i * sizeof(Component)};
    }
    return members;
  }();
};

template <>
struct StoredMembers<Vantrel::Simulation::Time> {
  using Time = Vantrel::Simulation::Time;
  static constexpr std::array rows{
      StoredMember{"mode", storedTypeIndex<std::int64_t>(), offsetof(Time, mode)},
      StoredMember{"time", storedTypeIndex<double>(), offsetof(Time, time)},
      StoredMember{"frame", storedTypeIndex<double>(), offsetof(Time, frame)},
      StoredMember{"frameLength", storedTypeIndex<double>(), offsetof(Time, frameLength)},
  };
};

template <>
struct StoredMembers<Vantrel::File::Project::SceneInfo> {
  using SceneInfo = Vantrel::File::Project::SceneInfo;
  static constexpr std::array rows{
      StoredMember{"fileName", storedTypeIndex<String>(), offsetof(SceneInfo, fileName)},
      StoredMember{"directory", storedTypeIndex<String>(), offsetof(SceneInfo, directory)},
      StoredMember{"secondaryPath", storedTypeIndex<String>(), offsetof(SceneInfo, secondaryPath)},
      StoredMember{"hasSecondaryPath", storedTypeIndex<bool>(),
                   offsetof(SceneInfo, hasSecondaryPath)},
  };
};

}  // namespace Orvel::Internal
