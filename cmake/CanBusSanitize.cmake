# Sanitizers for everything, and for libFuzzer the coverage that it steers by.

if(CANBUS_SANITIZE)
  set(sanitizers address,undefined)
  add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${sanitizers})
endif()
if(CANBUS_FUZZ)
  # Edges alone: libFuzzer's own choice (-fsanitize=fuzzer-no-link) also tells of each comparison, which costs a tenth of
  # a run and is what -use_cmp=0 throws away.
  add_compile_options(-fsanitize-coverage=inline-8bit-counters,pc-table
    -fsanitize-coverage-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/uncounted.txt)
  # A look-up for each call of a virtual function.
  add_compile_options(-fno-sanitize=vptr)
endif()
