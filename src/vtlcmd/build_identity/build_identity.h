#pragma once

#include <string>

/// Who this build is. The facts are constants of the build, kept as text; all operations may be
/// called at any time after load, from any thread.
namespace vtlcmd::build_identity {

const char* productName();
int majorVersion();
int minorVersion();
int patchVersion();
int fourthVersion();
int buildNumber();
/// "Thu 02/12/2026, 202602121530".
const char* buildDate();
/// Forty hexadecimal digits in lower case.
const char* commit();
const char* branch();

/// The four version numbers joined by ".".
std::string versionText();

/// "Vantrel version 3.7.1.0 (Thu 02/12/2026, 202602121530, build 4096, commit 0123456, branch
/// release)".
std::string buildBanner();

/// True when the environment variable exists and begins with a number other than 0.
bool envFlag(const char* name);

/// Whether the process has an error stream to write to.
bool hasErrorStream();

/// Writes the banner line to the process's error stream when QUILLON_DUMP_VERSION_INFO asks for it
/// and there is a stream to write to. Returns whether it did.
bool dumpVersionInfo();

/// What `dumpVersionInfo` returned while the library was loaded. Nothing in the library reads it;
/// it is for whoever looks at the process.
extern bool versionInfoDumped;

}  // namespace vtlcmd::build_identity
