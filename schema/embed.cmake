# Writes a C++ source that holds files as text:
#   cmake -DOUT=… -DROOT=… -DFILES=a;b -DNAMESPACE=… -DHEADER=… -P embed.cmake
# HEADER declares EmbeddedFile and embedded_files() in that namespace.
# The program carries its files inside, so that it needs none beside it.
set(body "// Made by schema/embed.cmake from the files named below.\n")
string(APPEND body "#include \"${HEADER}\"\n\nnamespace ${NAMESPACE} {\n\n")
string(APPEND body "namespace {\nconstexpr EmbeddedFile files[] = {\n")
foreach(file IN LISTS FILES)
  file(READ ${ROOT}/${file} text)
  string(APPEND body "    {\"${file}\", R\"~~~~(${text})~~~~\"},\n")
endforeach()
string(APPEND body "};\n}  // namespace\n\n")
string(APPEND body "std::span<const EmbeddedFile> embedded_files() { return files; }\n\n")
string(APPEND body "}  // namespace ${NAMESPACE}\n")
file(WRITE ${OUT}.new "${body}")
file(RENAME ${OUT}.new ${OUT})
