# The crash tests reach below QtSql to SQLite itself, to stop a child
# process at a chosen step of a statement (tests/common/killedchild).
find_package(SQLite3 REQUIRED)
target_link_libraries(kestrum_testsupport PUBLIC SQLite::SQLite3)
# Tests that start the console runner need it built first.
foreach(t integration_methodfiles integration_netns_discovery integration_remoteport unit_databasestartup)
  if(TARGET ${t})
    add_dependencies(${t} vantor-cli)
  endif()
endforeach()
