# Targets: vtlcmd::host, what every host links; the stand-ins for the closed libraries, such as
# vtlcmd::OrvelSDK; vtlcmd::VtlCmdTranslation, the plug-in, which is loaded and never linked.
# Variables: vtlcmd_PLUGIN_FILE, the plug-in, and vtlcmd_PLUGIN_DIR, its folder; absolute paths.
include(${CMAKE_CURRENT_LIST_DIR}/vtlcmd-targets.cmake)
get_target_property(vtlcmd_PLUGIN_FILE vtlcmd::VtlCmdTranslation LOCATION)
cmake_path(GET vtlcmd_PLUGIN_FILE PARENT_PATH vtlcmd_PLUGIN_DIR)
