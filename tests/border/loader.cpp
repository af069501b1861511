#include <dlfcn.h>

/// Loads the library that it is given and ends. It uses no streams of its own, so that whatever the
/// library needs of them at load, the library has to see to itself.
int main(int, char** arguments) {
  void* library = dlopen(arguments[1], RTLD_NOW);
  return library == nullptr || dlclose(library) != 0 ? 1 : 0;
}
