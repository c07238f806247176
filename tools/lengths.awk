# SPDX-License-Identifier: MIT
# Functions of more than 60 lines and files of more than 600 fail. The format puts the braces of a function on lines of
# their own, at the indent of its head: that is how a function is found.
FNR == 1 {
    finish()
    name = FILENAME
    open = ""
}
/^ *\{$/ && open == "" {
    match($0, /^ */)
    open = substr($0, 1, RLENGTH)
    start = FNR
}
open != "" || start > 0 {
    if ($0 == open "}" || $0 == open "};") {
        if (FNR - start - 1 > 60) {
            printf "%s:%d: function of %d lines\n", FILENAME, start, FNR - start - 1
            bad = 1
        }
        open = ""
        start = 0
    }
}
/^(class|struct|namespace)/ { head = FNR }
/^ +(: )?public [A-Za-z]+,?$/ && head == FNR - 1 { head = FNR }
{ lines = FNR }
# The brace of a class stands on a line of its own too, but is no function.
start > 0 && start == FNR && head == FNR - 1 {
    open = ""
    start = 0
}
function finish() {
    if (name != "" && lines > 600) {
        printf "%s: file of %d lines\n", name, lines
        bad = 1
    }
}
END {
    finish()
    exit bad
}
