# Qt Quick Test of the screens' JavaScript helpers (tests/qml/tst_*.qml).
add_executable(qml_helpers ${CMAKE_CURRENT_LIST_DIR}/main.cpp)
target_link_libraries(qml_helpers PRIVATE Qt5::QuickTest Qt5::Quick)
target_compile_definitions(qml_helpers PRIVATE QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_LIST_DIR}")
add_test(NAME qml_helpers COMMAND qml_helpers -input ${CMAKE_CURRENT_LIST_DIR})
set_tests_properties(qml_helpers PROPERTIES LABELS unit ENVIRONMENT "QT_QPA_PLATFORM=offscreen")

# The screens' load test takes the window's resources.
if(TARGET integration_qmlscreens)
  target_sources(integration_qmlscreens PRIVATE ${KESTRUM_QML_RESOURCES})
endif()
