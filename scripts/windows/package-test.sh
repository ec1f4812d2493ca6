# Sourced by scripts/windows/package: tests the packages under Wine. Installer and MSI each install an older version,
# signed with a certificate for this test, replace it while the screen is locked, refuse what they are to refuse, and
# are removed while the product runs.
# shellcheck shell=bash disable=SC2034,SC2154

source "$ROOT/scripts/windows/package-files.sh"

# Where an installer leaves its traces; the user's temporary files are not the installer's to keep or remove.
list_places() {
    (cd "$WINEPREFIX/drive_c" && find "Program Files" ProgramData users -path '*/Temp/*' -prune -o -print | sort)
}

has_key() { grep --quiet --fixed-strings "${1#*\\}" <(wine reg query "$1" 2>&1); }

# install KIND FILE [force]: the exit code is the installer's.
install() {
    case $1 in
        exe) run_limited 120 wine "$2" /S ${3:+/FORCE} ;;
        msi) run_limited 120 wine msiexec /i "$(windows_path "$2")" /qn ${3:+FORCE=1} ;;
    esac
}

# remove KIND: the exit code is the uninstaller's, which stays behind for it.
remove() {
    case $1 in
        exe)
            printf '@"%s\\Uninstall.exe" /S _?=%s\r\n' "$program_folder" "$program_folder" > "$work/remove.bat"
            run_limited 120 wine cmd /c "$(windows_path "$work/remove.bat")" || return
            rm "$installed/Uninstall.exe"
            rmdir "$installed"
            ;;
        msi) run_limited 120 wine msiexec /x "$(windows_path "$current.msi")" /qn ;;
    esac
}

upgrade() { install "$1" "$current.$1" || fail "The upgrade failed with $?."; }

# expect_refusal CODE COMMAND...: ends with the code and leaves every file as it was.
expect_refusal() {
    local expected=$1 before code=0
    before=$(sums_of "$installed")
    shift
    "$@" || code=$?
    [ "$code" = "$expected" ] || fail "It ended with $code instead of $expected: $*"
    diff <(echo "$before") <(sums_of "$installed") || fail "It was refused and changed files all the same: $*"
}

# hold FILE COMMAND...: while it runs, another program has the file open, named from the product's folder.
hold() {
    rm -f "$work/held"
    wine "$build/bin/hold_file.exe" "$program_folder$1" > "$work/held" 2> /dev/null &
    local holder=$! code=0
    shift
    wait_for "the file is held" test -s "$work/held"
    "$@" || code=$?
    kill "$holder"
    return "$code"
}

# A certificate for this test signs the older version, so that signing is seen and all of its files differ.
make_older() {
    openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj "/CN=Package test" -addext extendedKeyUsage=codeSigning \
        -keyout "$work/key.pem" -out "$work/certificate.pem" 2> /dev/null
    cat > "$work/sign" << EOF
set -e
osslsigncode sign -certs "$work/certificate.pem" -key "$work/key.pem" -in "\$1" -out "\$1.signed"
mv "\$1.signed" "\$1"
EOF
    cp -r "$stage" "$work/older"
    echo "no part of later versions" > "$work/older/licences/older.txt"
    RYX_SIGN_COMMAND="sh $work/sign" pack "$work/older" "$(older_than "$version")" "$older" zlib
}

check_signatures() {
    local file
    while read -r file; do
        osslsigncode verify -CAfile "$work/certificate.pem" -in "$file" > "$work/signature.log" 2>&1 ||
            fail "$file is not signed: $(tail -n 3 "$work/signature.log")"
    done < <(executables_in "$installed" && ls "$older".*)
}

# The agent is not part of the packages: it has the SDK's libraries, which the front end must not find. A user may want
# the front end to have another configuration and to show nothing on any screen.
start_product() {
    VELMORA_RYX_CONFIG=C:\\other.json WINEQT_QPA_PLATFORM=none GLOG_minloglevel=3 start_agent wine "$work/agent/ryx-agent.exe" --launch "$program_folder\\velmora-ryx.exe" -- -hide
}

# configure MODE: as users (777) or administrators alone (755) may write the folder; Wine makes its access list of that.
configure() {
    chmod "$1" "$shared"
    printf '{ "agentAccount": "%s" }\n' "$(id -un)" > "$shared/ryx.json"
}

# starts PROGRAM: the front end starts, and does not follow what a user may have configured.
starts() {
    local before line="ignores agentAccount in .*: its folder may be changed by S-1-1-0"
    before=$(logged "$line")
    configure 777
    wine "$1" -hide > /dev/null 2>&1 &
    local distrusting=$!
    wait_for "the configuration is ignored" has_logged "$before" "$line"
    kill -KILL "$distrusting"
    wait "$distrusting" 2> /dev/null || true
    configure 755
}

# test_package KIND OLDER IN_USE OTHER OTHERS: the exit codes with which it refuses an older version and a file in use,
# and the other kind of package with that one's exit code when it refuses to install over this one.
test_package() {
    local kind=$1 key="HKEY_LOCAL_MACHINE\\Software\\$vendor\\$name"
    say "$kind: installing an older version, and locking"
    list_places > "$work/before"
    mkdir -p "$shared"
    configure 777
    install "$kind" "$older.$kind" || fail "It cannot be installed: $?."
    [ ! -e "$shared/ryx.json" ] || fail "A configuration that users may have written was kept."
    [ -d "$shared/log" ] || fail "There is no folder for the logs."
    starts "$installed/velmora-ryx.exe"
    check_signatures
    has_key "$key" || fail "The registry does not know the version."
    grep --quiet "Start Menu/.*/$name.lnk\$" <(list_places) || fail "The start menu has no entry."
    start_product
    lock_screen

    say "$kind: upgrading while the screen is locked"
    comes_back upgrade "$kind"
    agent_said "front end ended with exit code 0" || fail "The front end was not asked to end."
    diff <(sums_of "$stage") <(sums_of "$installed") || fail "It is not what the ZIP holds."

    say "$kind: refusing an older version, the other kind of package, and files in use"
    forget_what_agent_said
    expect_refusal "$2" install "$kind" "$older.$kind"
    expect_refusal "$5" install "$4" "$current.$4"
    expect_refusal "$3" hold '\Qt5Svg.dll' install "$kind" "$older.$kind" force
    if [ "$kind" = msi ]; then
        expect_refusal 0 install msi "$current.msi" # which is installed already
    else
        touch "$installed.lock"
        expect_refusal 24 hold .lock install exe "$current.exe" # as while another installer is at work
    fi
    ! agent_said "front end" || fail "A refused installation has ended the product."
    comes_back install "$kind" "$older.$kind" force
    [ -e "$installed/licences/older.txt" ] || fail "The older version could not be forced."

    say "$kind: removing while the screen is locked"
    comes_back upgrade "$kind"
    remove "$kind" || fail "It cannot be removed: $?."
    wait_for "the product is gone" test ! -e "$installed"
    ! has_key "$key" || fail "The registry keeps $key."
    stop_agent
    local left
    left=$(comm -13 "$work/before" <(list_places) |
        grep --invert-match -e "^ProgramData/$name\(/log\(/.*\)\?\|/ryx.json\(.old-.*\)\?\)\?\$" -e "^users/[^/]*/AppData/" || true)
    [ -z "$left" ] || fail "Files are left behind: $left"
}

test_packages() {
    need_wine
    need_packages "${WINDOWS_PACKAGE_TEST_PACKAGES[@]}"
    RYX_WINDOWS_SDK=$("$ROOT/scripts/windows/sdk")
    say "testing the packages under Wine"
    start_wine "$build"
    work=$wine_dir
    program_folder="C:\\Program Files\\$name"
    installed="$WINEPREFIX/drive_c/Program Files/$name"
    shared=$WINEPREFIX/drive_c/ProgramData/$name
    logs=("$shared/log" "$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/$name/log")
    current=$packages/velmora-ryx-$version-windows-x64
    older=$work/older-package
    make_older
    check_files "$stage" "$packages/${stage##*/}.zip"
    mkdir -p "$shared"
    starts "$work/zip/${stage##*/}/velmora-ryx.exe"
    mkdir "$work/agent"
    cp "$build/bin/ryx-agent.exe" "$work/agent"
    ln -s "$RYX_WINDOWS_SDK"/bin/*.dll "$work/agent"
    wine "$build/bin/keep_desktop.exe" > /dev/null 2>&1 &
    disown
    # Of Windows Installer's codes the lowest eight bits are left. Wine tells an action that failed with one of its own.
    test_package exe 21 20 msi $((1603 % 256))
    test_package msi $((1603 % 256)) $((1627 % 256)) exe 22
}
