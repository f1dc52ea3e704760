# Qt Quick Test of the screens' JavaScript helpers (tests/qml/tst_*.qml).
add_executable(qml_helpers ${CMAKE_CURRENT_LIST_DIR}/main.cpp)
target_link_libraries(qml_helpers PRIVATE Qt5::QuickTest Qt5::Quick)
target_compile_definitions(qml_helpers PRIVATE QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_LIST_DIR}")
add_test(NAME qml_helpers COMMAND qml_helpers -input ${CMAKE_CURRENT_LIST_DIR})
set_tests_properties(qml_helpers PROPERTIES LABELS unit ENVIRONMENT "QT_QPA_PLATFORM=offscreen")

# The screens' load test takes the window's resources.
if(TARGET integration_qmlscreens)
  target_sources(integration_qmlscreens PRIVATE ${KESTRUM_QML_RESOURCES})
  add_dependencies(integration_qmlscreens kestrum_translations)
  set_target_properties(integration_qmlscreens PROPERTIES AUTOGEN_TARGET_DEPENDS kestrum_translations)
endif()

# Every source text of the screens has a translation in every language file.
add_test(NAME translations COMMAND python3 ${PROJECT_SOURCE_DIR}/scripts/translations check)
set_tests_properties(translations PROPERTIES LABELS unit)

# The language tests load the translation files from the resources.
if(TARGET unit_languageselector)
  target_sources(unit_languageselector PRIVATE ${CMAKE_BINARY_DIR}/translations/translations.qrc)
  add_dependencies(unit_languageselector kestrum_translations)
  set_target_properties(unit_languageselector PROPERTIES AUTOGEN_TARGET_DEPENDS kestrum_translations)
endif()
