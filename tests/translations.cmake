# The list-model test reads the catalogue sources to check that every message of them is translated.
target_compile_definitions(tst_alarmlistmodels PRIVATE ALARM_TRANSLATIONS_DIR="${PROJECT_SOURCE_DIR}/translations")
