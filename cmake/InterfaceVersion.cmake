# Of the project's version: KEL_INTERFACE_VERSION, the number of the library's binary interface, which its name has, and
# KEL_COMPATIBILITY, which other versions find_package() takes it for. As long as the version begins with 0, any minor
# version may change what was compiled against; from 1 on a major version may.
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(KEL_INTERFACE_VERSION 0.${PROJECT_VERSION_MINOR})
    set(KEL_COMPATIBILITY SameMinorVersion)
else()
    set(KEL_INTERFACE_VERSION ${PROJECT_VERSION_MAJOR})
    set(KEL_COMPATIBILITY SameMajorVersion)
endif()
