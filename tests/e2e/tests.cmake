# The end-to-end tests start build/bin/vantor-cli: it is built first.
foreach(t e2e_soak)
  if(TARGET ${t})
    add_dependencies(${t} vantor-cli)
  endif()
endforeach()
