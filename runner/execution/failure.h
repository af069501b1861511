#pragma once

namespace vtlcmd::runner {

/// Whether another attempt at the same frame may go better. The larger is the worse.
enum class Failure {
  none,
  /// Of the machine rather than of the graph: memory, disk, an interrupt.
  transient,
  /// The same again would fail again.
  permanent,
};

}  // namespace vtlcmd::runner
