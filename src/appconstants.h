#pragma once

// Fixed names of the instrument, as the target knows them. Pass each through
// Platform::path() before use.
#define DATABASE_FILE_NAME "/var/KestrumDB"
