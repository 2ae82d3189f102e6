# The numbers of a message table, one row a number in its first column, as a C++ table.
file(READ ${IN} rows)
string(REGEX MATCHALL "(^|\n)[0-9]+\t" ids "${rows}")
list(TRANSFORM ids STRIP)
list(JOIN ids ",\n    " ids)
file(WRITE ${OUT} "#pragma once\n\nnamespace tr7 {\n\ninline constexpr int kMessageIds[] = {\n    ${ids}};\n\n}  // namespace tr7\n")
