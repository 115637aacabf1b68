# The screens and the adapters to the outside world: Qt Widgets, Qt PrintSupport and SDL2_mixer.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets PrintSupport)
find_package(PkgConfig REQUIRED)
pkg_check_modules(SDL2_MIXER REQUIRED IMPORTED_TARGET SDL2_mixer)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)

add_library(skylob_ui STATIC
    app/Application.cpp
    app/QtInputGate.cpp
    app/QtLinkLabel.cpp
    app/QtLinkOpener.cpp
    app/QtLook.cpp
    app/QtManualPrinter.cpp
    app/QtMessageBoxes.cpp
    app/QtPacer.cpp
    app/QtScreenFade.cpp
    app/QtSettingsStore.cpp
    app/QtShapes.cpp
    app/QtSideFrame.cpp
    app/QtTitleAnimation.cpp
    app/QtTitlePicture.cpp
    app/SdlSoundDevice.cpp
    app/SdlSoundPlayer.cpp
    app/SingleCopy.cpp
    app/frmManual.cpp
    app/frmNewUser.cpp
    app/frmTitlePage.cpp
    app/modFadeInOut.cpp
    battle/QtEffectTimers.cpp
    battle/QtMenGauge.cpp
    battle/QtSidePanel.cpp
    battle/frmPlayGame.cpp
    battle/frmPlayGameLayout.cpp
    battle/picGameField.cpp
    controls/GlintButton.cpp
    controls/GlintButtonAccessible.cpp
    controls/GlintButtonInput.cpp
    controls/GlintButtonPictures.cpp
    controls/GlintPainter.cpp
    controls/QtFormButtons.cpp
    controls/QtPropertyBagFile.cpp
    players/PlayerGridModel.cpp
    players/QtChosenPlayer.cpp
    players/QtPlayerGrid.cpp
    players/frmGetPlayers.cpp
    players/frmGetSkillLevel.cpp
    players/frmSummary.cpp
)
set_target_properties(skylob_ui PROPERTIES AUTOMOC ON)
target_link_libraries(skylob_ui
    PUBLIC skylob_core Qt6::Widgets
    PRIVATE Qt6::PrintSupport PkgConfig::SDL2_MIXER PkgConfig::XCB skylob_strict)
target_compile_definitions(skylob_ui PRIVATE QT_NO_CAST_TO_ASCII)

# Sounds, pictures and forms are part of the program. They hang on the executables that use them: in a
# static library the linker would drop them.
function(skylob_add_resources target)
    file(GLOB sounds CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/sounds/*.wav)
    file(GLOB look CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/look/*.png
        ${PROJECT_SOURCE_DIR}/resources/look/*.qss)
    file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/pictures/*.png
        ${PROJECT_SOURCE_DIR}/resources/pictures/*.txt)
    file(GLOB strings CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/strings/*.txt)
    file(GLOB manual CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/strings/manual/*.txt)
    file(GLOB forms CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/forms/*.json)
    qt_add_resources(${target} forms PREFIX /forms
        BASE ${PROJECT_SOURCE_DIR}/resources/forms FILES ${forms})
    qt_add_resources(${target} strings PREFIX /strings
        BASE ${PROJECT_SOURCE_DIR}/resources/strings FILES ${strings})
    qt_add_resources(${target} manual PREFIX /strings/manual
        BASE ${PROJECT_SOURCE_DIR}/resources/strings/manual FILES ${manual})
    qt_add_resources(${target} sounds PREFIX /sounds
        BASE ${PROJECT_SOURCE_DIR}/resources/sounds FILES ${sounds})
    qt_add_resources(${target} look PREFIX /look
        BASE ${PROJECT_SOURCE_DIR}/resources/look FILES ${look})
    qt_add_resources(${target} pictures PREFIX /pictures
        BASE ${PROJECT_SOURCE_DIR}/resources/pictures FILES ${pictures})
endfunction()

add_executable(skylob app/main.cpp)
target_link_libraries(skylob PRIVATE skylob_ui skylob_strict)
skylob_add_resources(skylob)
