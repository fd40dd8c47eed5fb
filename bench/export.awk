# Does an export's work in awk, as a yardstick: mawk -v plan=PLAN -v target=FILE -f export.awk
# Writes the target file and prints files, exported and skipped cameras of the types 1 to 5, a line each.
# Expects extended fields in the order DirType, Direction, search patterns of letters, digits and blanks only, and
# beyond ASCII the same case in patterns and names.

BEGIN {
    RS = "\r?\n"
    while ((getline entry < plan) > 0) {
        split(entry, part, "\t")
        if (part[1] == "pattern") {
            pattern[++patterns] = part[3]
            patternType[patterns] = part[2]
            anyPattern = anyPattern (patterns > 1 ? "|" : "") part[3]
        } else {
            ARGV[ARGC++] = part[4]
            listType[part[4]] = part[2]
            speedOf[part[4]] = part[3]
            files[part[2]]++
        }
    }
    DECIMAL = "^[-+]?([0-9]+\\.[0-9]*|\\.[0-9]+)([EeDd][-+]?[0-9]+)?$"
    FS = "\""
    OFS = ","
    ORS = "\r\n"
    print "X,Y,TYPE,SPEED,DirType,Direction" > target
}

FNR == 1 {
    fileType = listType[FILENAME]
    speed = speedOf[FILENAME]
}

/^ *($|[\\\/:"<>|;!#])/ { next }

{
    type = fileType
    if (!splitFields() || (count != 3 && count != 5)) {
        if (count >= 2) skipped[type]++
        next
    }
    name = tolower(field[3])
    if (name ~ anyPattern) {
        for (i = 1; !index(name, pattern[i]); i++);
        type = patternType[i]
    }
    x = field[1]
    y = field[2]
    if (x ~ DECIMAL && y ~ DECIMAL && inRange(x, y)) {
        exported[type]++
        if (count == 5) print x, y, type, speed, field[4], field[5] > target
        else print x, y, type, speed, 0, 0 > target
    } else if (!index(x, "0.0") || !index(y, "0.0"))
        skipped[type]++
}

END {
    OFS = " "
    ORS = "\n"
    for (type = 1; type <= 5; type++) print files[type] + 0, exported[type] + 0, skipped[type] + 0
}

# Puts the fields of a line into `field` and their number into `count`; false when the quoting is bad.
# Nearly every line has one quoted field, the third; only the others take the long way.
function splitFields(    tail) {
    if (NF != 3 || split($1, field, / *, */) != 3 || field[3] != "") return splitOddFields($0 ",")
    sub(/^ +/, "", field[1])
    count = 1 + split($3 ",", tail, / *, */)
    field[3] = $2
    field[4] = tail[2]
    field[5] = tail[3]
    return 1
}

function splitOddFields(rest,    piece, end) {
    for (count = 0; count < 10; rest = substr(rest, index(rest, ",") + 1)) {
        sub(/^ +/, "", rest)
        if (rest == "") break
        if (rest ~ /^"/) {
            end = index(substr(rest, 2), "\"") + 1
            if (end == 1) return 0
            piece = substr(rest, 1, end)
            rest = substr(rest, end + 1)
        } else {
            piece = substr(rest, 1, index(rest, ",") - 1)
            if (index(piece, "\"")) return 0
            sub(/ +$/, "", piece)
        }
        field[++count] = piece
    }
    return 1
}

function inRange(x, y) {
    sub(/[Dd]/, "e", x)
    sub(/[Dd]/, "e", y)
    return x + 0 >= -180 && x + 0 <= 180 && y + 0 >= -90 && y + 0 <= 90 && y + 0 != 0
}
