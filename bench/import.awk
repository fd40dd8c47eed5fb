# Does a TXT import's work in awk, as a yardstick: mawk -v target=FOLDER -f import.awk SOURCE...
# Writes the camera files into the target folder, with extended fields in the order DirType, Direction.
# Expects speeds in plain digits without leading zeros, no more types and speeds than files may be open, and heading
# lines and records wherever a line has four or six fields.

BEGIN {
    RS = "\r?\n"
    FS = ","
    OFS = ", "
    ORS = "\r\n"
    comment = "; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction)."
    split("Fixed RedSpeed RedLight Section Mobile", word, " ")
    for (type in word) name[type] = "\"" word[type] " Camera\""
}

/ / {
    gsub(/ *, */, ",")
    gsub(/^ +| +$/, "")
}

(NF == 4 || NF == 6) && $3 in word {
    speed = $3 == "3" ? 0 : $4
    if (!(($3, speed) in path)) {
        path[$3, speed] = sprintf("%s/%s_Camera_%03d.asc", target, word[$3], speed)
        print comment ORS > path[$3, speed]
    }
    if (NF == 6 && $5 != "0") print $1, $2, name[$3], $5, $6 > path[$3, speed]
    else print $1, $2, name[$3], 0, 0 > path[$3, speed]
}
