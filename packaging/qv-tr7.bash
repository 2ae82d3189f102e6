# bash completion for qv-tr7 and qv-r7-sim

_qv_tr7() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  if [[ $before == --settings ]]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  elif [[ $before == --theme ]]; then
    mapfile -t COMPREPLY < <(compgen -W 'system light dark' -- "$word")
  elif [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W '--demo --settings --theme --help --version' -- "$word")
  else
    compopt -o filenames
    mapfile -t COMPREPLY < <(
      compgen -d -- "$word"
      compgen -f -X '!*.@(qvd|pmt|grp|smd|prg)' -- "$word"
    )
  fi
}

_qv_r7_sim() {
  local word=${COMP_WORDS[COMP_CWORD]}
  if [[ $word == -* ]]; then
    local options
    options=$(qv-r7-sim --help | sed -n 's/^  \(--[a-z-]*\).*/\1/p')
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}

complete -F _qv_tr7 qv-tr7
complete -F _qv_r7_sim qv-r7-sim
