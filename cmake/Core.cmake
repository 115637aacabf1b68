# What the program says of itself comes from the top of CMakeLists.txt.
configure_file(${PROJECT_SOURCE_DIR}/app/Release.h.in ${PROJECT_BINARY_DIR}/generated/app/Release.h @ONLY)

# The rules: standard library only.
add_library(skylob_core STATIC
    app/Clock.cpp
    app/CommandLine.cpp
    app/CountedWait.cpp
    app/DiskFile.cpp
    app/DiskFiles.cpp
    app/Fade.cpp
    app/Main.cpp
    app/OpenLink.cpp
    app/Pacer.cpp
    app/PrintLayout.cpp
    app/RandomInt.cpp
    app/Settings.cpp
    app/StringTable.cpp
    app/TitlePage.cpp
    app/TitleScene.cpp
    app/WaveImage.cpp
    battle/Battle.cpp
    battle/BattleControls.cpp
    battle/Battlefield.cpp
    battle/ComputerOpponent.cpp
    battle/Explosion.cpp
    battle/FieldPicture.cpp
    battle/HeadlessBattle.cpp
    battle/LightningStorm.cpp
    battle/Meteors.cpp
    battle/ShellFlight.cpp
    controls/GlintDesign.cpp
    controls/GlintInteraction.cpp
    controls/GlintLayout.cpp
    controls/GlintPalette.cpp
    controls/TransferPicture.cpp
    players/Commentary.cpp
    players/Lobby.cpp
    players/Pairing.cpp
    players/PlayerFile.cpp
    players/PlayerRecord.cpp
    players/Ranking.cpp
    players/SetResult.cpp
    players/Summary.cpp
    players/Windows1252.cpp
)
target_sources(skylob_core PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES
    app/Clock.h
    app/Colour.h
    app/CommandLine.h
    app/CountedWait.h
    app/DiskFile.h
    app/DiskFiles.h
    app/Fade.h
    app/FileSystem.h
    app/LinkOpener.h
    app/Main.h
    app/MessageBoxes.h
    app/OpenLink.h
    app/Pacer.h
    app/PerSide.h
    app/PrintLayout.h
    app/RandomInt.h
    app/Rounding.h
    app/Settings.h
    app/SettingsStore.h
    app/SoundPlayer.h
    app/StringTable.h
    app/TitlePage.h
    app/TitleScene.h
    app/TrimBlanks.h
    app/WaveImage.h
    app/basSkylob.h
    battle/AmbientEffect.h
    battle/Battle.h
    battle/BattleControls.h
    battle/BattlePanel.h
    battle/BattlePorts.h
    battle/BattleState.h
    battle/BattleView.h
    battle/Battlefield.h
    battle/ComputerOpponent.h
    battle/Explosion.h
    battle/FieldAnimation.h
    battle/FieldPicture.h
    battle/HeadlessBattle.h
    battle/LightningStorm.h
    battle/Meteors.h
    battle/ShellFlight.h
    controls/GlintDesign.h
    controls/GlintInteraction.h
    controls/GlintLayout.h
    controls/GlintPalette.h
    controls/GlintState.h
    controls/GlintSurface.h
    controls/PropertyBag.h
    controls/TransferPicture.h
    players/CommandGate.h
    players/Commentary.h
    players/Lobby.h
    players/Pairing.h
    players/PlayerFile.h
    players/PlayerRecord.h
    players/Ranking.h
    players/SetResult.h
    players/Summary.h
    players/SummaryKind.h
    players/Windows1252.h
)
# Each header compiles by itself: a test builds the target that this makes.
set_target_properties(skylob_core PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
target_include_directories(skylob_core PUBLIC ${PROJECT_BINARY_DIR}/generated)
target_link_libraries(skylob_core PRIVATE skylob_strict)

# A flight is the same on every machine: no fused multiply-add where the rules round twice.
target_compile_options(skylob_core PRIVATE -ffp-contract=off)

# One count of a counted wait is to be one turn of a machine loop in every kind of build.
set_source_files_properties(app/CountedWait.cpp PROPERTIES COMPILE_OPTIONS -O2)
