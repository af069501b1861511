include(${CMAKE_CURRENT_LIST_DIR}/header_only.cmake)
add_header_only(CLI11::CLI11 CLI)
set(CLI11_FOUND TRUE)
