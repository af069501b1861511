#include "support/loaded_library.h"

/// Loads the library that it is given and ends. It uses no streams of its own, so that whatever the
/// library needs of them at load, the library has to see to itself.
int main(int, char** arguments) {
  using namespace vtlcmd::testing;
  void* library = loadLibrary(arguments[1]);
  return library != nullptr && unloadLibrary(library) ? 0 : 1;
}
