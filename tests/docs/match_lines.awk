# Exit 0 when the second file matches the first line by line, where a line "..." of the
# first matches any number of lines.
FILENAME == ARGV[1] { want[++n] = $0; next }
{ have[++m] = $0 }
function at(pos, from, to,    i) { # want[from..to] stands at have[pos...]
    for (i = from; i <= to; i++)
        if (pos + i - from > m || have[pos + i - from] != want[i]) return 0
    return 1
}
END {
    # Split the pattern into segments between "..." lines.
    segs = 0; start = 1
    for (i = 1; i <= n + 1; i++) {
        if (i == n + 1 || want[i] == "...") {
            segs++; lo[segs] = start; hi[segs] = i - 1; start = i + 1
        }
    }
    if (segs == 1) exit !(n == m && at(1, 1, n))
    # The first segment is anchored at the start, the last at the end, the others
    # take their first fit in between.
    if (!at(1, lo[1], hi[1])) exit 1
    pos = hi[1] - lo[1] + 2
    last_len = hi[segs] - lo[segs] + 1
    for (s = 2; s < segs; s++) {
        len = hi[s] - lo[s] + 1
        for (; pos + len - 1 <= m - last_len; pos++)
            if (at(pos, lo[s], hi[s])) break
        if (pos + len - 1 > m - last_len) exit 1
        pos += len
    }
    exit !(m - last_len + 1 >= pos && at(m - last_len + 1, lo[segs], hi[segs]))
}
