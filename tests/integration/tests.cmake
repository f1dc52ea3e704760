# The crash tests reach below QtSql to SQLite itself, to stop a child
# process at a chosen step of a statement.
find_package(SQLite3 REQUIRED)
if(TARGET integration_migrationkill)
  target_link_libraries(integration_migrationkill PRIVATE SQLite::SQLite3)
endif()
# Tests that start the console runner need it built first.
foreach(t integration_methodfiles)
  if(TARGET ${t})
    add_dependencies(${t} vantor-cli)
  endif()
endforeach()
