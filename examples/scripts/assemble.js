// Opens a project, assembles it, writes the output files of button 1 and reports what the assembler says.
//
//     QT_QPA_PLATFORM=offscreen nalvo -s examples/scripts/assemble.js

// The event loop has not started yet, so the program can not be ended directly. This function runs when it has, also if
// the script fails before its end.
setTimeout(function() { app.exit(); }, 0);

function report(messages) {
    for (var i = 0; i < messages.length; ++i) {
        var message = messages[i];
        var place = message.file === '' ? '' : message.file.replace(/^.*\//, '') + ':' + message.line + ': ';
        if (message.grade !== 'info')
            print(place + message.grade + ': ' + message.text);
    }
}

if (!project.open(scriptDir + '/multiply/multiply.nalvo'))
    throw new Error('the project can not be opened');

var good = assembler.assemble(1);
report(msg.messages());
print(msg.errorCount() + ' errors, ' + msg.warningCount() + ' warnings');
if (good) {
    var files = assembler.writtenFiles();
    for (var i = 0; i < files.length; ++i)
        print('written: ' + files[i].replace(/^.*\//, ''));
    print(assembler.instructionCount() + ' instructions, "multiply" at address ' + assembler.labelAddress('multiply'));
}
print(good ? 'PASS' : 'FAIL');
