# Writes the files of a guide in Markdown into the folder `to`: each fenced block after a line that consists of the name
# of a file, `NAME`:.
/^`[A-Za-z.]+`:$/ { name = substr($0, 2, length($0) - 3); next }
/^```/ && inside { close(to "/" name); inside = 0; name = ""; next }
/^```/ && name != "" { inside = 1; printf "" > (to "/" name); next }
inside { print > (to "/" name) }
