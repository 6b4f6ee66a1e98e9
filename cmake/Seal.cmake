# cmake -D LIBRARY=<file> -P Seal.cmake: appends the seal of a library that is loaded while the program runs
# (foundation/SealedLibrary.h). Loaders pass over what follows the end of a library.
file(MD5 "${LIBRARY}" seal)
file(APPEND "${LIBRARY}" "${seal}")
