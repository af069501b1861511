#pragma once

namespace vtlcmd::failing {

/// Each ends this process as a system does that has reason to.
void crash();
void abortProcess();
void killProcess();

}  // namespace vtlcmd::failing
