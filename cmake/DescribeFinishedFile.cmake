# cmake -D file=TamberSetup.exe -D package=Tamber.msi -P DescribeFinishedFile.cmake
# Prints what a release is checked by: size, size without the package, SHA-256.
file(SIZE ${file} size)
file(SIZE ${package} package_size)
file(SHA256 ${file} sha256)
math(EXPR own "${size} - ${package_size}")
math(EXPR own_kb "(${own} + 500) / 1000")
message("${file}\n  ${size} bytes, ${own} (${own_kb} KB) without the package\n  SHA-256 ${sha256}")
