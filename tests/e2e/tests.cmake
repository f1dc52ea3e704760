# The end-to-end tests start build/bin/vantor-cli: it is built first.
foreach(t e2e_soak)
  if(TARGET ${t})
    add_dependencies(${t} vantor-cli)
  endif()
endforeach()

# The screens, driven as a finger does through scripts/run --drive
# (tests/e2e/ui/NAME.ui) against the application and the virtual instrument.
foreach(script sections firststart notification screenshot baddatabase
               titrationrun cyclelimit standardisation knownaddition blankrun wizardph wizardmka
               phcalibration onepointcalibration slopelimits burette redoxcalibration fivepointcalibration
               firststartpickers firststartlanguages usbimport readonlydatabase repeatedbuffer runoffers nooffers
               translatedmessages methodlibrary methodlimit methodexchange logs logprint reportoutput
               softwareupdate softwareupdatefailure
               settingsdisplay settingsnotifications factoryreset settingsatc settingspages)
  add_test(NAME e2e_ui_${script} COMMAND ${CMAKE_CURRENT_LIST_DIR}/ui/run-ui-test.sh ${script})
  set_tests_properties(e2e_ui_${script} PROPERTIES LABELS e2e RUN_SERIAL TRUE TIMEOUT 240)
endforeach()
# A calibration, a standardisation and a run of two cycles in one script.
set_tests_properties(e2e_ui_runoffers PROPERTIES TIMEOUT 480)

# The journeys: a new instrument from its first start through a chemist's
# work, checked against the database (tests/e2e/ui/journeyNAME.ui).
foreach(journey acidbase knownaddition redox factoryreset update)
  add_test(NAME e2e_journey_${journey} COMMAND ${CMAKE_CURRENT_LIST_DIR}/ui/run-ui-test.sh journey${journey})
  set_tests_properties(e2e_journey_${journey} PROPERTIES LABELS e2e RUN_SERIAL TRUE TIMEOUT 480)
endforeach()
