#compdef nalvo-asm nalvo-import nalvo-prove nalvo-sim
# Completion of nalvo-asm, nalvo-import, nalvo-prove and nalvo-sim in zsh.

# The format of messages, or else a source that gets its columns.
_nalvo_format_or_source() {
  _alternative 'formats:format:(text json)' 'files:source:_files -g "*.psm"'
}

# KIND[:OPTION...]=FILE
_nalvo_output() {
  if compset -P '*='; then
    _files
  else
    compadd -S = -- hex mem mif coe binary ihex ram
  fi
}

# ADDR=FILE: a number, then a file.
_nalvo_port() {
  if compset -P '*='; then
    _files
  else
    _message 'address of the port, followed by ='
  fi
}

local -a common bounds values requests
common=(
  '(- :)'{-h,--help}'[show the options]'
  '(- :)--version[show the version]'
)
bounds=(
  '(-n --instructions)'{-n+,--instructions=}'[end after N instructions]:number of instructions: '
  '--max-clocks=[end with the instruction that reaches N clock cycles]:number of clocks: '
)
values=(
  '--reads=[values for all reads of ports without a source of their own]:file of values:_files'
  '*--port=[values for the reads of one port]:address and file:_nalvo_port'
  '--stimulus=[values of ports and interrupt requests by the clock]:file of stimuli:_files'
  '--hwbuild=[what HWBUILD reads]:value from 0 to 255: '
)
requests=(
  '--interrupt-every=[request an interrupt every N instructions]:number of instructions: '
  '--interrupt-at=[request an interrupt at these instructions]:numbers of instructions: '
  '*--interrupt-at-clock=[the interrupt input is up from this clock on]:clock and length: '
)

case $service in
  nalvo-asm)
    _arguments -s -S $common \
      '(-e --event)'{-e+,--event=}'[write the output files of this event]:event:(button1 button2 save none)' \
      '(-f --format)'{-f+,--format=}'[format of messages, or put a source into columns]:format or source:_nalvo_format_or_source' \
      '--in-place[write the formatted source back into its file]' \
      '(-l --listing)'{-l+,--listing=}'[write a listing]:listing:_files' \
      '(-s --symbols)'{-s+,--symbols=}'[write labels and constants as JSON]:file of symbols:_files' \
      '*'{-o+,--output=}'[write the memory in a format]:kind and file:_nalvo_output' \
      '--depfile=[write a rule for make or ninja]:rule:_files' \
      '*--depfile-target=[what the rule is about]:name of the target:_files' \
      '(-W --werror)'{-W,--werror}'[count warnings as errors]' \
      '--allow-outside[write outputs that a source names outside of the folder]' \
      '--explain=[show what the help says about a message]:key of a message: ' \
      '--external-programs[run the external programs of the event]' \
      '(-v)-q[show errors alone]' \
      '(-q)-v[show info messages and groups too]' \
      '1:project:_files -g "*.nalvo"'
    ;;
  nalvo-import)
    _arguments -s -S $common \
      '(-d --dialect)'{-d+,--dialect=}'[dialect of the source]:dialect:(auto kcpsm3 kcpsm6 pblazide mico8)' \
      '(-o --output)'{-o+,--output=}'[folder of the project]:folder:_files -/' \
      '*-I+[look for included files there, too]:folder:_files -/' \
      '--reference=[compare with the image of the old tool]:image:_files' \
      '--image=[make the sources from an image alone]:image:_files' \
      '--processor=[processor of the image]:processor:(pb3 pb6 mico8)' \
      '(-f --format)'{-f+,--format=}'[format of messages]:format:(text json)' \
      '--force[overwrite files in the folder of the project]' \
      '(-v)-q[show errors alone]' \
      '(-q)-v[show info messages too]' \
      '1:source:_files -g "*.(psm|asm|s|S|src)"'
    ;;
  nalvo-prove)
    _arguments -s -S $common $bounds $values $requests \
      '--core=[source of the core]:file or folder:_files -g "*.(v|vhd|vhdl)"' \
      '--language=[take the source in this language only]:language:(verilog vhdl)' \
      '(-f --format)'{-f+,--format=}'[format of messages and result]:format:(text json)' \
      '-q[show errors and the result alone]' \
      '1:project:_files -g "*.nalvo"'
    ;;
  nalvo-sim)
    _arguments -s -S $common $bounds $values $requests \
      '--start=[start at this label]:label: ' \
      '--until=[end at this label]:label: ' \
      '--exact[simulate exactly what the core does]' \
      '--trace-clocks[show the clock of each instruction in the trace]' \
      '--trace=[write the trace]:trace:_files' \
      '--vcd=[write the values at all ports as waves]:file of waves:_files' \
      '--dump=[write the final state as JSON]:file of the state:_files' \
      '-v[warn where the core would do otherwise]' \
      '-q[show errors alone]' \
      '1:project:_files -g "*.nalvo"'
    ;;
esac
