# The C++ code of a Markdown page, with the page's lines for messages of the compiler:
#   awk -f code_of_page.awk PAGE
$0 == "```cpp" { print "#line " NR + 1 " \"" FILENAME "\""; inside = 1; next }
$0 == "```" { inside = 0 }
inside
