# The presets of the tests compile eight sources at a time, which takes a quarter of the time. Sources whose names in
# unnamed namespaces clash with a neighbour's, or whose headers do, are compiled apart from the others there.
function(orvanta_compile_apart target)
  if(NOT TARGET ${target})
    return()
  endif()
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/)
  set_source_files_properties(${ARGN} TARGET_DIRECTORY ${target} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

orvanta_compile_apart(orvanta_core src/launcher/modExec.cpp src/platform/DosBox.cpp)
orvanta_compile_apart(orvanta_disctool
  src/disctool/check/CheckLines.cpp src/disctool/check/CheckSettings.cpp src/disctool/check/CheckTree.cpp
  src/disctool/check/CheckUnread.cpp src/disctool/command/DiscDiff.cpp src/disctool/command/ManyDiscs.cpp
  src/disctool/disc/DiscTree.cpp src/disctool/disc/IniFile.cpp src/disctool/disc/MenuTree.cpp src/disctool/image/sectors/ByteSource.cpp)
orvanta_compile_apart(orvanta_desktop
  src/platform/desktop/InstanceLock.cpp src/platform/desktop/ShellFolder.cpp
  src/platform/desktop/start/DefaultApplication.cpp)
orvanta_compile_apart(orvanta_disctool_desktop
  src/disctool/gallery/GalleryFolder.cpp src/disctool/gallery/PictureLayers.cpp src/disctool/making/NewDisc.cpp
  src/disctool/tool/OpenCommand.cpp src/disctool/tool/Tool.cpp)
orvanta_compile_apart(orvanta_tests
  tests/IncludesTest.cpp tests/config/DiscTest.cpp tests/config/ProfileStringTest.cpp
  tests/disctool/check/CheckTest.cpp tests/disctool/command/ManyDiscsTest.cpp
  tests/disctool/image/ImageTreeTest.cpp tests/disctool/image/SheetsTest.cpp)
orvanta_compile_apart(orvanta_desktop_tests
  tests/desktop/media/FilmStoryTest.cpp tests/desktop/window/InstanceLockTest.cpp)
