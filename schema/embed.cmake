# Writes a C++ source that holds files as text: cmake -DOUT=… -DROOT=… -DFILES=a;b -P embed.cmake
# The program carries its schema inside, so that it needs no files beside it.
set(body "// Made by schema/embed.cmake from the files named below.\n")
string(APPEND body "#include \"schema/embedded.h\"\n\nnamespace schema {\n\n")
string(APPEND body "namespace {\nconstexpr EmbeddedFile files[] = {\n")
foreach(file IN LISTS FILES)
  file(READ ${ROOT}/${file} text)
  string(APPEND body "    {\"${file}\", R\"~~~~(${text})~~~~\"},\n")
endforeach()
string(APPEND body "};\n}  // namespace\n\n")
string(APPEND body "std::span<const EmbeddedFile> embedded_files() { return files; }\n\n")
string(APPEND body "}  // namespace schema\n")
file(WRITE ${OUT}.new "${body}")
file(RENAME ${OUT}.new ${OUT})
