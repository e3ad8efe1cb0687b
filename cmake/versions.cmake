# tallyvane_check_version(<name> <oldest> <newest tried> <version>)
# Stops below the oldest version that works, and tells above the newest that was tried.
function(tallyvane_check_version name oldest newest version)
    if(version VERSION_LESS oldest)
        message(FATAL_ERROR "Tallyvane needs ${name} ${oldest} or later; this is ${version}.")
    endif()
    string(REGEX MATCH "^[0-9]+[.]?[0-9]*" compared ${version}) # without the patch level
    if(compared VERSION_GREATER newest)
        message(NOTICE "Tallyvane was tried with ${name} ${oldest} to ${newest}; this is ${version}.")
    endif()
endfunction()
