#pragma once

namespace vtlcmd::oracle {

__extension__ using Int128 = __int128;
__extension__ using Uint128 = unsigned __int128;

}  // namespace vtlcmd::oracle
