# Windows and macOS installs carry their own Qt: the Qt deployment script
# (windeployqt / macdeployqt underneath) copies the Qt libraries and plugins
# the program needs next to it, or into its app bundle. Linux packages use the
# system's Qt instead and never come here. Included from src/app for the
# target `brenko`.
if(NOT (WIN32 OR APPLE))
  return()
endif()

include(GNUInstallDirs)

# A window program, not a console one; on macOS an app bundle, which the
# deployment needs.
set_target_properties(brenko PROPERTIES WIN32_EXECUTABLE ON MACOSX_BUNDLE ON)

install(TARGETS brenko
        BUNDLE DESTINATION .
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# Qt 6.5 renamed the argument that receives the script's name.
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5)
  qt_generate_deploy_app_script(TARGET brenko OUTPUT_SCRIPT brenko_deploy
                                NO_UNSUPPORTED_PLATFORM_ERROR)
else()
  qt_generate_deploy_app_script(TARGET brenko FILENAME_VARIABLE brenko_deploy
                                NO_UNSUPPORTED_PLATFORM_ERROR)
endif()
install(SCRIPT ${brenko_deploy})
