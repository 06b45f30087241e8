# Writes the files of a guide in Markdown: each fenced block behind a line that is only the name of a file, `NAME`:, into
# the folder `to`.
/^`[A-Za-z.]+`:$/ { name = substr($0, 2, length($0) - 3); next }
/^```/ && inside { close(to "/" name); inside = 0; name = ""; next }
/^```/ && name != "" { inside = 1; printf "" > (to "/" name); next }
inside { print > (to "/" name) }
