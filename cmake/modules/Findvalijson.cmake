# Valijson for another machine, as its own package describes it.
include(HostHeaders)
add_host_headers(valijson valijson)
target_compile_definitions(valijson INTERFACE VALIJSON_USE_EXCEPTIONS=1)
set(valijson_FOUND TRUE)
