# The few Open CASCADE libraries that read STEP files. The package's own CMake configuration is not used: it asks for the
# development files of everything that the kernel was ever linked to (TBB, X11, OpenGL, Tcl), none of which is needed here.
# Gives the target OpenCascade::Step; OpenCascade_LIBRARY_<name> is the path of each library.
find_path(OpenCascade_INCLUDE_DIR STEPCAFControl_Reader.hxx PATH_SUFFIXES opencascade)
mark_as_advanced(OpenCascade_INCLUDE_DIR)
set(OpenCascade_LIBRARIES)
set(OpenCascade_required OpenCascade_INCLUDE_DIR)
foreach(name IN ITEMS
        TKXDESTEP TKSTEP TKSTEPAttr TKSTEPBase TKXSBase TKXCAF TKLCAF TKCDF TKMesh TKTopAlgo TKBRep TKG3d TKMath TKernel)
    find_library(OpenCascade_LIBRARY_${name} ${name})
    mark_as_advanced(OpenCascade_LIBRARY_${name})
    list(APPEND OpenCascade_LIBRARIES ${OpenCascade_LIBRARY_${name}})
    list(APPEND OpenCascade_required OpenCascade_LIBRARY_${name})
endforeach()
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCascade REQUIRED_VARS ${OpenCascade_required})
unset(OpenCascade_required)
if(OpenCascade_FOUND AND NOT TARGET OpenCascade::Step)
    add_library(OpenCascade::Step INTERFACE IMPORTED GLOBAL)
    set_target_properties(OpenCascade::Step PROPERTIES
        INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${OpenCascade_INCLUDE_DIR}"
        INTERFACE_INCLUDE_DIRECTORIES "${OpenCascade_INCLUDE_DIR}"
        INTERFACE_LINK_LIBRARIES "${OpenCascade_LIBRARIES}")
endif()
