#pragma once

/// The headers of this folder declare what the plug-in imports from the closed libraries, and what
/// those share with it as header code. They hold for every build of the libraries; what one of them
/// has besides is declared elsewhere. Conditions stand in brackets, as in
/// vtlcmd/host/host_records.h; where [any thread] stands on an operation that isn't const, no other
/// thread may use that object. Constructors of an object from nothing, a copy or a move, and its
/// end, are [any thread]. What is [may throw] changes nothing that exists when it does.

/// Marks the declarations of a library: exported while the library itself is compiled (its build
/// defines `<Library>_EXPORTS`), imported by everyone else.

#if defined(_WIN32)
#define CLOSED_LIBRARY_EXPORT __declspec(dllexport)
#define CLOSED_LIBRARY_IMPORT __declspec(dllimport)
#else
#define CLOSED_LIBRARY_EXPORT __attribute__((visibility("default")))
#define CLOSED_LIBRARY_IMPORT __attribute__((visibility("default")))
#endif

#if defined(OrvelCore_EXPORTS)
#define ORVEL_CORE_API CLOSED_LIBRARY_EXPORT
#else
#define ORVEL_CORE_API CLOSED_LIBRARY_IMPORT
#endif

#if defined(OrvelSDK_EXPORTS)
#define ORVEL_SDK_API CLOSED_LIBRARY_EXPORT
#else
#define ORVEL_SDK_API CLOSED_LIBRARY_IMPORT
#endif

#if defined(VantrelBoardExecutor_EXPORTS)
#define VANTREL_BOARD_EXECUTOR_API CLOSED_LIBRARY_EXPORT
#else
#define VANTREL_BOARD_EXECUTOR_API CLOSED_LIBRARY_IMPORT
#endif

#if defined(VantrelObject_EXPORTS)
#define VANTREL_OBJECT_API CLOSED_LIBRARY_EXPORT
#else
#define VANTREL_OBJECT_API CLOSED_LIBRARY_IMPORT
#endif

#if defined(VantrelGeometry_EXPORTS)
#define VANTREL_GEOMETRY_API CLOSED_LIBRARY_EXPORT
#else
#define VANTREL_GEOMETRY_API CLOSED_LIBRARY_IMPORT
#endif
