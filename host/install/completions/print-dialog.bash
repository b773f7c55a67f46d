# Bash completion for print-dialog. Asks CUPS for the printers and their options on each Tab, for a second
# at most, and offers none without a message if CUPS does not respond.

# Sets `words` to the words before the cursor, joining what bash splits at "=" and ":".
_print_dialog_read_line() {
  local line=${COMP_LINE:0:COMP_POINT} index
  words=()
  for ((index = 0; index <= COMP_CWORD; index++)); do
    local word=${COMP_WORDS[index]}
    if ((index && ${#words[@]})) && [[ $line != [[:space:]]* ]]; then
      words[-1]+=${line:0:${#word}}
    else
      line=${line#"${line%%[![:space:]]*}"}
      words+=("${line:0:${#word}}")
    fi
    line=${line:${#word}}
  done
}

# Sets the variable $1 to the last argument of the option with the names $2 and on.
_print_dialog_argument() {
  local -n argument=$1
  local index name
  argument=
  for ((index = 1; index < ${#words[@]} - 1; index++)); do
    for name in "${@:2}"; do
      if [[ ${words[index]} == "$name" ]]; then
        argument=${words[index + 1]}
      elif [[ $name == --* && ${words[index]} == "$name="* ]]; then
        argument=${words[index]#*=}
      elif [[ $name == -? && ${words[index]} == "$name"?* ]]; then
        # shellcheck disable=SC2034 # a reference to the caller's variable
        argument=${words[index]:2}
      fi
    done
  done
}

_print_dialog_ask() {
  local server
  _print_dialog_argument server -h
  if type -P timeout >/dev/null; then
    ${server:+env "CUPS_SERVER=$server"} timeout 1 "$@" 2>/dev/null </dev/null
  fi
}

# Prints a line "name choice choice ..." for each option of the printer.
_print_dialog_options() {
  local queue ppd
  _print_dialog_argument queue -d --queue
  _print_dialog_argument ppd --ppd
  if [[ $ppd ]]; then
    [[ -f ${ppd/#\~\//$HOME/} ]] || return
    tr '\r' '\n' <"${ppd/#\~\//$HOME/}" 2>/dev/null | awk '
      /^\*(JCL)?OpenUI/ { option = $2; sub(/^\*/, "", option); sub(/[\/:].*/, "", option); line = option }
      /^\*(JCL)?CloseUI/ && option != "" { print line; option = "" }
      option != "" && $1 == "*" option { choice = $2; sub(/[\/:].*/, "", choice); line = line " " choice }'
  else
    _print_dialog_ask lpoptions ${queue:+-p "$queue"} -l |
      sed -n 's/^\([^/: ]*\)[^:]*:/\1/p' | tr -d '*'
  fi
}

# Offers the candidates in $2 and on that begin with $1, which bash has split before its last "=" or ":".
# They are names that others chose and go into a command line, so quotes what the shell would act on.
_print_dialog_offer() {
  local typed=$1 candidate split=
  shift
  if [[ $COMP_WORDBREAKS == *=* && $typed == *=* ]]; then split=${typed%"${typed##*=}"}; fi
  for candidate; do
    [[ $candidate == "$typed"* ]] || continue
    candidate=${candidate#"$split"}
    if [[ $candidate == *[!A-Za-z0-9_.,:=/@%+-]* ]]; then printf -v candidate %q "$candidate"; fi
    COMPREPLY+=("$candidate")
  done
}

_print_dialog_offer_settings() {
  local typed=$1 name choice
  local -a candidates=() choices
  while read -r name choice; do
    if [[ $typed == "$name="* ]]; then
      read -ra choices <<<"$choice"
      for choice in "${choices[@]}"; do candidates+=("$name=$choice"); done
    else
      candidates+=("$name=")
    fi
  done < <(_print_dialog_options)
  _print_dialog_offer "$typed" "${candidates[@]}"
  [[ ${COMPREPLY[*]} != *= ]] || compopt -o nospace
}

# Offers files that match the pattern $2 (all by default), and folders.
_print_dialog_offer_files() {
  local file typed=${1/#\~\//$HOME/}
  compopt -o filenames
  while IFS= read -r file; do
    [[ -e $file ]] || continue # part of a name with line breaks
    # shellcheck disable=SC2053 # a pattern
    if [[ -d $file || ${file##*/} == ${2-*} ]]; then COMPREPLY+=("$file"); fi
  done < <(compgen -f -- "$typed")
}

_print_dialog_offer_queues() {
  local -a queues
  mapfile -t queues < <(_print_dialog_ask lpstat -e)
  _print_dialog_offer "$1" "${queues[@]}"
}

_print_dialog_value() {
  case $1 in
  -d | --queue | --delete-alignments) _print_dialog_offer_queues "$2" ;;
  -o | --option) _print_dialog_offer_settings "$2" ;;
  -H) _print_dialog_offer "$2" hold immediate resume indefinite day-time evening night weekend \
    second-shift third-shift no-hold ;;
  -U) mapfile -t COMPREPLY < <(compgen -u -- "$2") ;;
  --ppd) _print_dialog_offer_files "$2" '*.[pP][pP][dD]' ;;
  --plugin) _print_dialog_offer_files "$2" '*.plugin' ;;
  --ticket | --export-alignments | --import-alignments) _print_dialog_offer_files "$2" '*.json' ;;
  --sheet | --pdf) _print_dialog_offer_files "$2" '*.[pP][dD][fF]' ;;
  --prepare | --prepared) _print_dialog_offer_files "$2" ;;
  --back) _print_dialog_offer "$2" on off ;;
  --appearance) _print_dialog_offer "$2" light dark ;;
  --text-scale) _print_dialog_offer "$2" 1 1.25 1.5 2 ;;
  -h | -n | -P | -q | -t | --set | --reading | --crease | --parent) ;;
  *) return 1 ;;
  esac
}

_print_dialog() {
  local -a words
  local word current previous
  COMPREPLY=()
  _print_dialog_read_line
  current=${words[-1]}
  previous=${words[-2]-}
  for word in "${words[@]:1:${#words[@]}-2}"; do
    if [[ $word == -- ]]; then
      _print_dialog_offer_files "$current"
      return
    fi
  done
  if [[ $current == --*=* ]] && _print_dialog_value "${current%%=*}" "${current#*=}"; then return; fi
  if _print_dialog_value "$previous" "$current"; then return; fi
  if [[ $current == -* ]]; then
    _print_dialog_offer "$current" --version --help --ppd -d --queue -h -E -U -o --option -n -P -q \
      -H -t -m -s -c --list-options --dry-run --no-shift --plugin --ticket --pdf --prepare \
      --prepared --parent --appearance --text-scale --batch --set --back --summary --align --reading --crease --sheet --no-alignment --list-alignments \
      --export-alignments --import-alignments --delete-alignments
    return
  fi
  _print_dialog_offer_files "$current"
}

complete -F _print_dialog print-dialog
