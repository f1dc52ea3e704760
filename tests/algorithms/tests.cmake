# Closed-loop runs of the titration algorithms take their chemistry from the
# virtual instrument's beaker.
foreach(t unit_closedlooprun unit_knownadditionrun)
  if(TARGET ${t})
    target_link_libraries(${t} PRIVATE virtualinstrument)
  endif()
endforeach()
