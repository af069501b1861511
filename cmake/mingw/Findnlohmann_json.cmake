include(${CMAKE_CURRENT_LIST_DIR}/header_only.cmake)
add_header_only(nlohmann_json::nlohmann_json nlohmann)
set(nlohmann_json_FOUND TRUE)
