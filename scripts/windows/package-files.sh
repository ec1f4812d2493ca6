# Sourced by scripts/windows/package-test.sh: looks at the files that are delivered.
# shellcheck shell=bash disable=SC2154

# Every file but the uninstaller, with its checksum.
sums_of() { (cd "$1" && find . -type f ! -name Uninstall.exe -exec sha256sum {} + | sort -k 2); }

# The version in the fixed part of the resource, for the file and for the product, as 16-bit words.
has_version() {
    local part
    IFS=. read -ra part <<< "$2"
    local words
    words=$(printf '%04x %04x %04x %04x' "${part[1]}" "${part[0]}" "${part[3]}" "${part[2]}")
    grep --quiet "04bd feef 0000 0001 $words $words" \
        <(wrestool --raw --extract --type=16 "$1" | od -An -v -tx2 | tr -s ' \n' ' ')
}

# Every library that a program or library in the folder asks for is there as well, or is Windows' own.
check_imports() {
    local file library
    while read -r file; do
        while read -r library; do
            [ -f "$1/$library" ] || [ -f "$WINEPREFIX/drive_c/windows/system32/${library,,}" ] ||
                fail "$file needs $library, which is not installed."
        done < <(x86_64-w64-mingw32-objdump --private-headers "$file" | sed -n 's/.*DLL Name: //p')
    done < <(executables_in "$1")
}

# check_files FOLDER ZIP
check_files() {
    local file
    unzip -q "$2" -d "$work/zip"
    diff <(sums_of "$1") <(sums_of "$work/zip/${1##*/}") || fail "The ZIP is not what was packed."
    for file in velmora-ryx.exe ryx-capture.exe RyxUser.dll plugins/platforms/qwindows.dll plugins/iconengines/qsvgicon.dll \
        translations/qtbase_{ar,de,en,es,fr,ja,zh_CN}.qm licences/{velmora-ryx,third-party,qtbase}.txt \
        licences/common/LGPL-3.txt parts.spdx.json; do
        [ -s "$1/$file" ] || fail "$file is not packed."
    done
    for file in velmora-ryx.exe ryx-capture.exe RyxUser.dll; do
        has_version "$1/$file" "$version" || fail "$file does not carry the version $version."
    done
    grep --quiet group_icon <(wrestool --list --type=14 "$1/velmora-ryx.exe") || fail "The icon is missing."
    grep --quiet PerMonitorV2 <(wrestool --raw --extract --type=24 "$1/velmora-ryx.exe") || fail "The manifest is missing."
    check_imports "$1"
    executables_in "$1" | xargs -d '\n' "$ROOT/packaging/check-hardening" || fail "A protection is missing."
    say "version $version, icon, manifest, translations, licences, every library and their protections are there"
}
