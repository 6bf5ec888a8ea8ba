# The registry scripts, made from one table: they differ in nothing but its columns. Only 13502 and
# 13503 are ever run; the others are carried with their irregularities:
# 13509 repeats 13503, 13510 gives the construction lines' name to the class of the inner lines,
# and 13504 has a class identifier of its own.
set(registry_scripts
#   resource  class                       class identifier                        Programmable
    "13502    TAMURStructureReader        {6A4EEDF9-1A86-4389-9730-27DFCE62D7BC}  yes"
    "13503    TMRSurfaciqueAccessor       {56797634-7040-4C19-8D2A-52EC1757E79F}  no"
    "13504    TMRMasseAccessor            {EBEB08BD-8F28-447F-BA7F-C7A553E40E0A}  no"
    "13505    TMRCableAccessor            {AF633A54-C3AA-4492-B956-02F2E3878C66}  yes"
    "13506    TMRLineAideAccessor         {2A652C09-59A5-4773-98A5-8F004191F1DB}  yes"
    "13507    TMRDeplacementAccessor      {B7D15417-B6C4-4690-B517-5BBF67423A05}  yes"
    "13508    TMRParoiAccessor            {9A35FD0B-FF7F-422A-B8A0-ABB9D2CA889E}  no"
    "13509    TMRSurfaciqueAccessor       {56797634-7040-4C19-8D2A-52EC1757E79F}  no"
    "13510    TMRLineAideAccessor         {7BC8C31B-FCA0-404A-9B1C-5F59176638EA}  yes"
    "13511    TMRSurfacicSectionAccessor  {4F870764-0A9D-4918-B346-E985480CAD2D}  yes"
)

# Writes the scripts to `directory`, and registry_scripts.rc that makes resources of them.
function(write_registry_scripts directory)
    set(resources "")
    foreach(row IN LISTS registry_scripts)
        separate_arguments(columns UNIX_COMMAND "${row}")
        list(GET columns 0 resource)
        list(GET columns 1 class)
        list(GET columns 2 CLASS_ID)
        list(GET columns 3 programmable)
        set(PROG_ID "TAMURReader.${class}")
        set(DESCRIPTION "${class} Class")
        set(PROGRAMMABLE "")
        if(programmable STREQUAL "yes")
            set(PROGRAMMABLE "            ForceRemove Programmable\n")
        endif()
        configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/class.rgs.in
                       ${directory}/${resource}.rgs @ONLY)
        string(APPEND resources "${resource} REGISTRY \"${resource}.rgs\"\n")
    endforeach()
    file(CONFIGURE OUTPUT ${directory}/registry_scripts.rc CONTENT "${resources}" @ONLY)
endfunction()
