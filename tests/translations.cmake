# The translation test reads the catalogue sources to check that the built-in .qm files carry all of them.
target_compile_definitions(tst_translations PRIVATE ALARM_TRANSLATIONS_DIR="${PROJECT_SOURCE_DIR}/translations")
