// Assembles one program for several processors and compares how long they take for it. The project file stays as it is.
//
//     QT_QPA_PLATFORM=offscreen nalvo -s examples/scripts/processors.js

setTimeout(function() { app.exit(); }, 0);

if (!project.open(scriptDir + '/multiply/multiply.nalvo'))
    throw new Error('the project can not be opened');
print('of the project: ' + processor.current());

var names = processor.names();
for (var i = 0; i < names.length; ++i) {
    processor.select(names[i]);
    if (!assembler.assemble(0)) {
        print(names[i] + ': ' + msg.errorCount() + ' errors');
        continue;
    }
    simulator.enable();
    simulator.runTo('done', 1000);
    print(names[i] + ': ' + assembler.instructionCount() + ' instructions, ' + simulator.clocks() + ' clocks, product ' +
          simulator.reg(simulator.regNames()[2]));
    simulator.disable();
}
