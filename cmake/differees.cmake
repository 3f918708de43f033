# Libraries of the system that the program loads when it first calls them, not when it starts: with printing come the spooler's
# own libraries, several megabytes that most sessions never use. The targets bear the names of the libraries that they stand
# for. A function that is not listed here is still found in the toolchain's own import library, and loads all at the start.
find_program(KORVANE_DLLTOOL NAMES x86_64-w64-mingw32-dlltool REQUIRED)

function(korvane_differee nom dll)
    set(dossier "${CMAKE_BINARY_DIR}/differees")
    set(definition "${dossier}/${nom}.def")
    set(archive "${dossier}/lib${nom}.a")
    list(JOIN ARGN "\n" fonctions)
    file(CONFIGURE OUTPUT "${definition}" CONTENT "LIBRARY ${dll}\nEXPORTS\n${fonctions}\n" @ONLY)
    add_custom_command(OUTPUT "${archive}"
        COMMAND "${KORVANE_DLLTOOL}" -m i386:x86-64 -d "${definition}" -D ${dll} -y "${archive}"
        DEPENDS "${definition}" COMMENT "Delayed ${dll}" VERBATIM)
    add_custom_target(${nom}_archive DEPENDS "${archive}")
    add_library(${nom} INTERFACE)
    add_dependencies(${nom} ${nom}_archive)
    target_link_libraries(${nom} INTERFACE "${archive}" delayimp)
endfunction()

korvane_differee(winspool WINSPOOL.DRV ClosePrinter DeviceCapabilitiesW DocumentPropertiesW EnumPrintersW
    GetDefaultPrinterW GetPrinterW OpenPrinterW)
korvane_differee(comdlg32 COMDLG32.DLL ChooseColorW ChooseFontW CommDlgExtendedError FindTextW GetOpenFileNameW
    GetSaveFileNameW PageSetupDlgW PrintDlgExW PrintDlgW ReplaceTextW)
