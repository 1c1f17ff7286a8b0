#include "node/reference/BashCompletion.h"

#include <stdexcept>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/commands/Command.h"
#include "node/reference/ProgramOptions.h"

namespace node::reference
{

namespace
{

constexpr const char* Head = R"(# bash completion of kel-node: the program itself tells what may stand where.

)";

constexpr const char* Functions = R"(
# The word without the shell's quotation marks and backslashes, into $plain; the mark that is still open, into $quote.
_kel_node_plain()
{
    local word=$1 letter i
    plain=''
    quote=''
    for ((i = 0; i < ${#word}; i++)); do
        letter=${word:i:1}
        case $quote$letter in
        \' | \") quote=$letter ;;
        \'\' | \"\") quote='' ;;
        \"\\)
            [[ ${word:i+1:1} == [\"\\\$\`] ]] && ((++i))
            plain+=${word:i:1}
            ;;
        \\)
            ((++i))
            plain+=${word:i:1}
            ;;
        *) plain+=$letter ;;
        esac
    done
}

# What the program offers for the last one of these words, into $candidates; $whole is empty where one is not.
_kel_node_ask()
{
    local line='' word candidate
    for word in "$@"; do
        word=${word//\\/\\\\}
        line+=\"${word//\"/\\\"}'" '
    done
    # The last word is not whole: its quotation mark stays open, and each answer begins with one.
    line=${line%'" '}
    # Without -r, read takes the backslashes off.
    # shellcheck disable=SC2162
    while IFS= read candidate; do
        [[ $candidate == *\" ]] || whole=''
        candidate=${candidate#\"}
        candidates+=("${candidate%\"}")
    done < <("$program" --complete "$line" 2>/dev/null)
}

# The values that begin so, of an option that takes $takes, into $candidates.
_kel_node_values()
{
    case $takes in
    file)
        compopt -o filenames
        quote=none # readline quotes the names of files by itself
        mapfile -t candidates < <(compgen -f -- "$1")
        ;;
    'argument of '*) _kel_node_ask "${takes#argument of }" "$1" ;;
    *) mapfile -t candidates < <(compgen -W "$takes" -- "$1") ;;
    esac
}

_kel_node()
{
    # Readline breaks words at '=' and ':' too, and replaces only what stands behind: $before is what it keeps.
    local words=() before='' plain='' quote='' whole=yes piece='' gap i
    local line=${COMP_LINE:0:COMP_POINT}
    for ((i = 0; i <= COMP_CWORD; i++)); do
        gap=${line%%[![:space:]]*}
        line=${line#"$gap"}
        piece=${COMP_WORDS[i]}
        ((i < COMP_CWORD)) || piece=$line
        line=${line#"$piece"}
        if [[ $i -eq 0 || -n $gap ]]; then
            words+=('')
        fi
        before=${words[-1]}
        _kel_node_plain "$piece"
        words[-1]+=$plain
    done
    if [[ -z ${piece//[:=]/} ]]; then
        before=${words[-1]}
    fi

    local last=$((${#words[@]} - 1))
    local program=${words[0]/#\~\//~/} word=${words[last]} first takes='' prefix='' candidates=()
    # The program's own options stand before the command.
    for ((first = 1; first < last; first++)); do
        [[ ${words[first]} == -?* && ${words[first]} != -- ]] || break
        _kel_node_takes "${words[first]}"
        [[ -z $takes ]] || ((++first))
    done

    if [[ ${COMP_WORDS[COMP_CWORD - 1]} == *[\<\>] ]]; then
        takes='file'
        _kel_node_values "$plain"
        candidates=("${candidates[@]/#/"$before"}")
    elif ((first > last)); then
        _kel_node_values "$word"
    elif [[ $first -eq $last && $word == --*=* ]]; then
        prefix=${word%%=*}=
        _kel_node_takes "${word%%=*}"
        _kel_node_values "${word#*=}"
        candidates=("${candidates[@]/#/"$prefix"}")
    elif [[ $first -eq $last && $word == -* ]]; then
        mapfile -t candidates < <(compgen -W "$_kel_node_options" -- "$word")
    else
        [[ ${words[first]} != -- ]] || ((++first))
        _kel_node_ask "${words[@]:first}"
    fi

    local candidate
    COMPREPLY=()
    for candidate in "${candidates[@]}"; do
        candidate=${candidate:${#before}}
        [[ -z $candidate || -n $quote ]] || printf -v candidate %q "$candidate"
        COMPREPLY+=("$candidate")
    done
    if [[ ${#COMPREPLY[@]} -eq 1 && -z $whole ]]; then
        compopt -o nospace
    fi
}

complete -F _kel_node kel-node
)";

/// The first command whose first argument names such a thing.
/// @throws std::logic_error when there is none
std::string commandThatTakes(commands::WordKind kind)
{
    for (const std::string& name : commands::commandNames())
    {
        const auto& arguments = commands::commandNamed(name).arguments;
        if (!arguments.empty() && arguments.front().kind == kind)
        {
            return name;
        }
    }
    throw std::logic_error("no command takes what an option of the program does");
}

/// What the functions do for an option's value: offer files, what the program offers for a command, or these words.
std::string offerFor(const ProgramOption& option)
{
    switch (option.kind)
    {
    case commands::WordKind::File:
        return "file";
    case commands::WordKind::Other:
        return fmt::format("{}", fmt::join(option.choices, " "));
    default:
        return "argument of " + commandThatTakes(option.kind);
    }
}

/// The options and what they take.
std::string optionPart()
{
    std::string all;
    std::string alone;
    std::string withValue;
    std::string rows;
    for (const ProgramOption& option : programOptions())
    {
        const std::string name = "--" + option.name;
        const std::string letter = option.letter == 0 ? "" : std::string(1, option.letter);
        all += fmt::format("{}{}{}", all.empty() ? "" : " ", letter.empty() ? "" : "-" + letter + " ", name);
        (option.value.empty() ? alone : withValue) += letter;
        if (!option.value.empty())
        {
            rows += fmt::format("    {}{}) takes='{}' ;;\n", letter.empty() ? "" : "-" + letter + " | ", name,
                                offerFor(option));
        }
    }
    return fmt::format("_kel_node_options='{}'\n"
                       "\n"
                       "# What an option takes, into $takes: \"\" for nothing. \"-{}{}\" is \"-{} -{}\".\n"
                       "_kel_node_takes()\n"
                       "{{\n"
                       "    [[ $1 =~ ^-[{}]+([{}])$ ]] && set -- \"-${{BASH_REMATCH[1]}}\"\n"
                       "    case $1 in\n"
                       "{}"
                       "    *) takes='' ;;\n"
                       "    esac\n"
                       "}}\n",
                       all, alone.front(), withValue.front(), alone.front(), withValue.front(), alone, withValue, rows);
}

} // namespace

std::string bashCompletion()
{
    return Head + optionPart() + Functions;
}

} // namespace node::reference
