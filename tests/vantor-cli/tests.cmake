# Tests of the run controller that use the virtual instrument's chemistry,
# and those that start the console runner or the instrument, link their
# libraries and need the programs built first.
foreach(t integration_titrationrun unit_titrationcontroller)
  if(TARGET ${t})
    target_link_libraries(${t} PRIVATE vantorcli)
    add_dependencies(${t} vantor-cli virtual-instrument)
  endif()
endforeach()
