# Closed-loop runs of the titration algorithms take their chemistry from the
# virtual instrument's beaker.
foreach(t unit_endpointrun unit_equivalencerun unit_knownadditionrun)
  if(TARGET ${t})
    target_link_libraries(${t} PRIVATE virtualinstrument)
  endif()
endforeach()
# End-point and known-addition runs against the virtual instrument on a
# pseudo-terminal; the true end point comes from its beaker.
if(TARGET integration_techniquesonslave)
  add_dependencies(integration_techniquesonslave virtual-instrument)
  target_link_libraries(integration_techniquesonslave PRIVATE virtualinstrument)
endif()
