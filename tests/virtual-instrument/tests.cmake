# Tests that use the virtual instrument's pieces directly (chemistry, slave
# model, pseudo-terminal) link its library.
foreach(t unit_beaker unit_virtualslave integration_serialtransport)
  if(TARGET ${t})
    target_link_libraries(${t} PRIVATE virtualinstrument)
  endif()
endforeach()
# Tests that start the program need it built first.
foreach(t integration_slavelink integration_burettecontroller)
  if(TARGET ${t})
    add_dependencies(${t} virtual-instrument)
    target_link_libraries(${t} PRIVATE virtualinstrument)
  endif()
endforeach()
