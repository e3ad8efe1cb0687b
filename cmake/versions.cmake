# tallyvane_check_version(<name> <oldest> <newest> <version>)
# Stops below the oldest version that works, and tells above the newest that this was written for;
# what that leaves open, such as a patch level, does not matter.
function(tallyvane_check_version name oldest newest version)
    if(version VERSION_LESS oldest)
        message(FATAL_ERROR "Tallyvane needs ${name} ${oldest} or later; this is ${version}.")
    endif()
    string(REGEX REPLACE "[0-9]+" "[0-9]+" form "${newest}")
    string(REGEX MATCH "^${form}" compared "${version}")
    if(compared VERSION_GREATER newest)
        message(NOTICE "Tallyvane was written for ${name} ${oldest} to ${newest}; "
            "this is ${version}.")
    endif()
endfunction()

# Qt's functions with types of the standard library have other names with libc++, and do not link.
function(tallyvane_check_standard_library)
    include(CheckCXXSymbolExists)
    check_cxx_symbol_exists(_LIBCPP_VERSION version TALLYVANE_USES_LIBCXX)
    if(TALLYVANE_USES_LIBCXX)
        message(FATAL_ERROR "Tallyvane needs libstdc++, with which Qt and QCoro are built; "
            "this compiler uses libc++.")
    endif()
endfunction()
