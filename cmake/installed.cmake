# Where what is installed goes: in one folder of its own, because the stand-ins for the headers of Windows
# must be seen by nobody else.
include(GNUInstallDirs)
set(installed_headers ${CMAKE_INSTALL_INCLUDEDIR}/TAMURReader)
