# toml++ for another machine: its headers alone, without the library that is compiled for this one.
include(HostHeaders)
add_host_headers(tomlplusplus::tomlplusplus toml++)
set(tomlplusplus_FOUND TRUE)
