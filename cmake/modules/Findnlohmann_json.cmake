# JSON for Modern C++ for another machine.
include(HostHeaders)
add_host_headers(nlohmann_json::nlohmann_json nlohmann)
set(nlohmann_json_FOUND TRUE)
