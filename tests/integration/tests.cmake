# The crash tests reach below QtSql to SQLite itself, to stop a child
# process at a chosen step of a statement.
find_package(SQLite3 REQUIRED)
# (tests/common/killedchild does this for the tests that use it.)
foreach(t integration_runkill)
  if(TARGET ${t})
    target_link_libraries(${t} PRIVATE SQLite::SQLite3)
  endif()
endforeach()
# Tests that start the console runner need it built first.
foreach(t integration_methodfiles)
  if(TARGET ${t})
    add_dependencies(${t} vantor-cli)
  endif()
endforeach()
