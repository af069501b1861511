#pragma once

// A build that never was, for tests of the texts that builds are told by.
namespace vtlcmd::build_facts {

inline constexpr const char* productName = "Vantrel";
inline constexpr const char* majorVersion = "3";
inline constexpr const char* minorVersion = "7";
inline constexpr const char* patchVersion = "1";
inline constexpr const char* fourthVersion = "0";
inline constexpr const char* buildNumber = "4096";
inline constexpr const char* buildDate = "Thu 02/12/2026, 202602121530";
inline constexpr const char* commit = "0123456789abcdef0123456789abcdef01234567";
inline constexpr const char* branch = "release";

}  // namespace vtlcmd::build_facts
