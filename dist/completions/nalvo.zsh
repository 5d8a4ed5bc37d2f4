#compdef nalvo
# Completion of nalvo in zsh.

_arguments \
  '(--help --version)-s[run the script, after the project is open]:script:_files -g "*.js"' \
  '(- :)--help[show the options]' \
  '(- :)--version[show the version]' \
  '(--help --version)1:project:_files -g "*.nalvo"'
