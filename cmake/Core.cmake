# The rules: standard library only.
add_library(skylob_core STATIC
    app/Clock.cpp
    app/CommandLine.cpp
    app/CountedWait.cpp
    app/Pacer.cpp
    app/RandomInt.cpp
    app/Settings.cpp
    app/WaveImage.cpp
    battle/Battle.cpp
    battle/BattleControls.cpp
    battle/Battlefield.cpp
    battle/ComputerOpponent.cpp
    battle/Explosion.cpp
    battle/FieldPicture.cpp
    battle/HeadlessBattle.cpp
    battle/ShellFlight.cpp
    players/SetResult.cpp
)
target_include_directories(skylob_core PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(skylob_core PRIVATE skylob_strict)

# A flight is the same on every machine: no fused multiply-add where the rules round twice.
target_compile_options(skylob_core PRIVATE -ffp-contract=off)

# One count of a counted wait is to be one turn of a machine loop in every kind of build.
set_source_files_properties(app/CountedWait.cpp PROPERTIES COMPILE_OPTIONS -O2)
