file(READ ${IN} hex HEX)
string(LENGTH "${hex}" digits)
math(EXPR size "${digits} / 2")
string(REGEX REPLACE "(................................................................)" "\\1\n" hex "${hex}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${hex}")
file(WRITE ${OUT}
  "extern const char tr7_res_${NAME}[];\nextern const unsigned tr7_res_${NAME}_size;\n"
  "const char tr7_res_${NAME}[] = {\n${bytes}0};\nconst unsigned tr7_res_${NAME}_size = ${size};\n")
