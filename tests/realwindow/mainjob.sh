# For tools/real_window.sh: the main job from the first connection to the files and back again.
#
#   mainjob.sh FOLDER: leaves job.vnt, job.csv and job.png there, and the pictures recorded and reopened
folder=$1
samples=12

took_samples() {
    [ "$(tail -n "+$((log_lines + 1))" "$log" | grep -c 'Controller::handleValueMessage')" -ge $samples ]
}

record_shot() {
    key F7
    wait_log 'View::setRecordingRunning(bool) true'
    wait_for took_samples
    key F7
    wait_log 'View::setRecordingRunning(bool) false'
}

# save_as KEY TITLE NAME
save_as() {
    key "$1"
    wait_dialog "$2"
    type "$folder/$3"
    key Return
    wait_main ''
    wait_for test -s "$folder/$3"
}

start
key F5
wait_main '^Ventaro - [0-9. ]+$' # not "(disconnected)"
wait_log 'Controller::handleSensorDescription'
key ctrl+4
wait_log 'View::onTabSelected(int) 3'
record_shot
record_shot
picture recorded
save_as ctrl+shift+s '^Projekt speichern$' job.vnt
save_as ctrl+e '^Save data logger file$' job.csv
save_as ctrl+shift+g '^Save oscilloscope$' job.png
key ctrl+q
wait_dialog '^Ventaro$'
key Return
wait_end

start "$folder/job.vnt"
key ctrl+4
wait_log 'View::onTabSelected(int) 3'
picture reopened
key ctrl+q
wait_dialog '^Ventaro$'
picture question
key Return
wait_end
