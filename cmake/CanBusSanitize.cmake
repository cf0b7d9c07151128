# Sanitizers for everything, and for libFuzzer the coverage that it steers by.

if(CANBUS_SANITIZE)
  set(sanitizers address,undefined)
  if(CANBUS_FUZZ)
    string(APPEND sanitizers ,fuzzer-no-link)
  endif()
  add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${sanitizers})
endif()
