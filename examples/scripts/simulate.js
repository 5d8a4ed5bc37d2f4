// Simulates a routine with several arguments and compares the registers.
//
//     QT_QPA_PLATFORM=offscreen nalvo -s examples/scripts/simulate.js

setTimeout(function() { app.exit(); }, 0);

var factors = [[12, 7], [0, 0], [255, 255], [1, 200], [128, 2]];
var failures = 0;

function check(what, found, expected) {
    if (found === expected)
        return;
    ++failures;
    print('FAIL: ' + what + ' is ' + found + ' and not ' + expected);
}

if (!project.open(scriptDir + '/multiply/multiply.nalvo') || !assembler.assemble(1) || !simulator.enable())
    throw new Error('the program can not be simulated');

for (var i = 0; i < factors.length; ++i) {
    var a = factors[i][0], b = factors[i][1];
    simulator.reset();
    // The program begins with factors of its own. They are replaced when it has set them.
    if (!simulator.runTo('multiply', 100))
        throw new Error('"multiply" is not reached: ' + simulator.endReason());
    simulator.setReg('s0', a);
    simulator.setReg('s1', b);
    var clocks = simulator.clocks();
    if (!simulator.runTo('done', 1000))
        throw new Error('"done" is not reached: ' + simulator.endReason());
    var product = simulator.reg('s2') + 256 * simulator.reg('s3');
    check(a + ' * ' + b, product, a * b);
    check('the call depth', simulator.callDepth(), 0);
    print(a + ' * ' + b + ' = ' + product + ' in ' + (simulator.clocks() - clocks) + ' clocks');
}
simulator.disable();
print(failures === 0 ? 'PASS' : 'FAIL: ' + failures);
