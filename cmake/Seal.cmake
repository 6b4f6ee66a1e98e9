# cmake -D LIBRARY=<file> -P Seal.cmake: appends the seal of a library that is loaded at run time
# (foundation/plugins/SealedLibrary.h). Dynamic loaders ignore bytes after the end of a library.
file(MD5 "${LIBRARY}" seal)
file(APPEND "${LIBRARY}" "${seal}")
