# Tests of the run controller that use the virtual instrument's chemistry,
# and those that start the console runner or the instrument, link their
# libraries and need the programs built first.
foreach(t integration_titrationrun unit_titrationcontroller unit_discoveryreply integration_transfercommand)
  if(TARGET ${t})
    target_link_libraries(${t} PRIVATE vantorcli)
    add_dependencies(${t} vantor-cli virtual-instrument)
  endif()
endforeach()

# The stop inside the completed signal releases the run's objects while the
# controller's own code is still on the stack. The run controller's tests
# are built a second time with AddressSanitizer, over a sanitized copy of
# only the engine sources they use (not the whole core), so a use after free
# shows up in every test run at little build cost. A build that is
# sanitized as a whole (KESTRUM_ASAN) needs no copy.
if(NOT KESTRUM_ASAN)
  set(asan_dir ${PROJECT_SOURCE_DIR}/src)
  file(GLOB ASAN_ENGINE_SOURCES CONFIGURE_DEPENDS
    ${asan_dir}/controller/*.cpp
    ${asan_dir}/controller/algorithms/*.cpp
    ${asan_dir}/controller/algorithms/maths/*.cpp
    ${asan_dir}/interfaces/*.cpp)
  # The meter controller leans on the data layer, and the report controller
  # on the screens and the USB disk, which the copy leaves out.
  list(FILTER ASAN_ENGINE_SOURCES EXCLUDE REGEX "/(metercontroller|reportcontroller)\\.cpp$")
  add_executable(asan_titrationcontroller
    ${ASAN_ENGINE_SOURCES}
    ${asan_dir}/titrationcontrollerbase.cpp
    ${asan_dir}/system/platform.cpp
    ${asan_dir}/system/clock.cpp
    ${asan_dir}/reports/logmanager.cpp
    ${asan_dir}/models/concentrationcalc.cpp
    ${PROJECT_SOURCE_DIR}/tools/virtual-instrument/beaker.cpp
    ${PROJECT_SOURCE_DIR}/tools/virtual-instrument/jsonfields.cpp
    ${CMAKE_CURRENT_LIST_DIR}/../common/testsupport.cpp
    ${CMAKE_CURRENT_LIST_DIR}/../common/algorithmdriver.cpp
    ${CMAKE_CURRENT_LIST_DIR}/../main/gtest_qt_main.cpp
    ${CMAKE_CURRENT_LIST_DIR}/../unit/test_titrationcontroller.cpp)
  target_include_directories(asan_titrationcontroller PRIVATE
    ${asan_dir} ${CMAKE_CURRENT_LIST_DIR}/../common ${PROJECT_SOURCE_DIR}/tools/virtual-instrument)
  target_compile_definitions(asan_titrationcontroller PRIVATE
    KESTRUM_VERSION="${PROJECT_VERSION}" KESTRUM_DEFAULT_SANDBOX="${KESTRUM_SANDBOX}" QT_NO_FOREACH
    KESTRUM_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}" KESTRUM_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  target_compile_options(asan_titrationcontroller PRIVATE -O1 -g -fsanitize=address -fno-omit-frame-pointer)
  target_link_options(asan_titrationcontroller PRIVATE -fsanitize=address)
  target_link_libraries(asan_titrationcontroller PRIVATE
    Qt5::Core Qt5::SerialPort Qt5::Test Eigen3::Eigen GTest::gtest)
  add_test(NAME asan.RunController COMMAND asan_titrationcontroller)
  set_tests_properties(asan.RunController PROPERTIES LABELS unit
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=0:abort_on_error=1")
endif()

# The meter commands are tested with the meter against the instrument.
if(TARGET integration_meteronslave)
  add_dependencies(integration_meteronslave vantor-cli)
endif()

# The UI driver's script runner lives in the console's library.
if(TARGET unit_uiscript)
  target_link_libraries(unit_uiscript PRIVATE vantorcli)
endif()

# `vantor-cli update` is tested beside the update it reports on.
if(TARGET unit_softwareupdater)
  target_link_libraries(unit_softwareupdater PRIVATE vantorcli)
endif()
