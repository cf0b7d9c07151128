# Sanitizers for everything, and for libFuzzer the coverage that it steers by.

if(CANBUS_SANITIZE)
  set(sanitizers address,undefined)
  if(CANBUS_FUZZ)
    string(APPEND sanitizers ,fuzzer-no-link)
    # What the tests find as well, and costs a look-up for each call of a virtual function.
    add_compile_options(-fno-sanitize=vptr -fsanitize-coverage-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/uncounted.txt)
  endif()
  add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${sanitizers})
endif()
