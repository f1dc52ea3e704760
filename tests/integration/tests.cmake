# The crash tests reach below QtSql to SQLite itself, to stop a child
# process at a chosen step of a statement.
find_package(SQLite3 REQUIRED)
if(TARGET integration_killedunits)
  target_link_libraries(integration_killedunits PRIVATE SQLite::SQLite3)
endif()
