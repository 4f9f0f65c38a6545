; Stator coil: 0.50 mm wire, 36 mm window, 28 layers of 72 turns, 2016 turns in all.
; Tape is laid after every sixth layer; the tension falls as the coil grows.
;
; X guide along the bobbin    mm   0 is the left flange
; Y guide to the coil         mm   distance from the bobbin core
; Z guide height              mm   0 is the spindle's centre line
; U wire tension              N
; S spindle speed             1/min
; K pitch of the traverse     mm a turn (G33: traverse in step with the spindle)

G21
G90
T2             ; guide tube 0.60 mm
M05

; ---- Start: bring the wire to the pin ----
G00 X-6 Y40 Z12 U0
G00 Z0
G01 Y14 F1500
M10            ; clamp the wire
G01 U1.0 F100
G01 X-2 F600
S60 M03        ; two turns round the pin
G04 F2.0
M05
G01 X0.25 F600

; ---- Layer 1 of 28, left to right, 72 turns ----

G01 Y14.50 F800   ; clear of the layer below
G01 U6.0 F100
S120 M03       ; first layer: lay it by hand if it crosses
G33 X1.75 K0.50
S480
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y14.20 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 2 of 28, right to left, 72 turns ----

G01 Y14.94 F800   ; clear of the layer below
G01 U5.9 F100
S240
G33 X34.25 K0.50
S480
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y14.64 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 3 of 28, left to right, 72 turns ----

G01 Y15.37 F800   ; clear of the layer below
G01 U5.8 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y15.07 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; Press the layer down
S60
G01 Z-4 F400
G04 F1.5
G01 Z0 F400

; ---- Layer 4 of 28, right to left, 72 turns ----

G01 Y15.80 F800   ; clear of the layer below
G01 U5.7 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y15.50 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 5 of 28, left to right, 72 turns ----

G01 Y16.24 F800   ; clear of the layer below
G01 U5.6 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y15.94 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 6 of 28, right to left, 72 turns ----

G01 Y16.68 F800   ; clear of the layer below
G01 U5.5 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y16.38 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; Tape over layer 6
M05
G01 U0.5 F100
G01 Y34.17 F1500
M00            ; lay one turn of tape, then start
G01 Y16.68 F1500
G01 U5.5 F100
S60 M03
G04 F1.0

; ---- Layer 7 of 28, left to right, 72 turns ----

G01 Y17.11 F800   ; clear of the layer below
G01 U5.4 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y16.81 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 8 of 28, right to left, 72 turns ----

G01 Y17.55 F800   ; clear of the layer below
G01 U5.3 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y17.25 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 9 of 28, left to right, 72 turns ----

G01 Y17.98 F800   ; clear of the layer below
G01 U5.2 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y17.68 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; Press the layer down
S60
G01 Z-4 F400
G04 F1.5
G01 Z0 F400

; ---- Layer 10 of 28, right to left, 72 turns ----

G01 Y18.41 F800   ; clear of the layer below
G01 U5.1 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y18.11 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 11 of 28, left to right, 72 turns ----

G01 Y18.85 F800   ; clear of the layer below
G01 U5.0 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y18.55 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 12 of 28, right to left, 72 turns ----

G01 Y19.29 F800   ; clear of the layer below
G01 U4.9 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y18.98 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; Tape over layer 12
M05
G01 U0.5 F100
G01 Y36.78 F1500
M00            ; lay one turn of tape, then start
G01 Y19.29 F1500
G01 U4.9 F100
S60 M03
G04 F1.0

; ---- Layer 13 of 28, left to right, 72 turns ----

G01 Y19.72 F800   ; clear of the layer below
G01 U4.8 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y19.42 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 14 of 28, right to left, 72 turns ----

G01 Y20.16 F800   ; clear of the layer below
G01 U4.7 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y19.86 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 15 of 28, left to right, 72 turns ----

G01 Y20.59 F800   ; clear of the layer below
G01 U4.6 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y20.29 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; Press the layer down
S60
G01 Z-4 F400
G04 F1.5
G01 Z0 F400

; ---- Layer 16 of 28, right to left, 72 turns ----

G01 Y21.02 F800   ; clear of the layer below
G01 U4.5 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y20.72 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 17 of 28, left to right, 72 turns ----

G01 Y21.46 F800   ; clear of the layer below
G01 U4.4 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y21.16 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 18 of 28, right to left, 72 turns ----

G01 Y21.89 F800   ; clear of the layer below
G01 U4.3 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y21.59 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; Tape over layer 18
M05
G01 U0.5 F100
G01 Y39.39 F1500
M00            ; lay one turn of tape, then start
G01 Y21.89 F1500
G01 U4.3 F100
S60 M03
G04 F1.0

; ---- Layer 19 of 28, left to right, 72 turns ----

G01 Y22.33 F800   ; clear of the layer below
G01 U4.2 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y22.03 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 20 of 28, right to left, 72 turns ----

G01 Y22.77 F800   ; clear of the layer below
G01 U4.1 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y22.46 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 21 of 28, left to right, 72 turns ----

G01 Y23.20 F800   ; clear of the layer below
G01 U4.0 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y22.90 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; Press the layer down
S60
G01 Z-4 F400
G04 F1.5
G01 Z0 F400

; ---- Layer 22 of 28, right to left, 72 turns ----

G01 Y23.63 F800   ; clear of the layer below
G01 U3.9 F100
S240
G33 X34.25 K0.50
S900
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y23.33 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 23 of 28, left to right, 72 turns ----

G01 Y24.07 F800   ; clear of the layer below
G01 U3.8 F100
S240
G33 X1.75 K0.50
S900
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y23.77 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 24 of 28, right to left, 72 turns ----

G01 Y24.51 F800   ; clear of the layer below
G01 U3.7 F100
S240
G33 X34.25 K0.50
S720
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y24.21 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; Tape over layer 24
M05
G01 U0.5 F100
G01 Y42.01 F1500
M00            ; lay one turn of tape, then start
G01 Y24.51 F1500
G01 U3.7 F100
S60 M03
G04 F1.0

; ---- Layer 25 of 28, left to right, 72 turns ----

G01 Y24.94 F800   ; clear of the layer below
G01 U3.6 F100
S240
G33 X1.75 K0.50
S720
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y24.64 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 26 of 28, right to left, 72 turns ----

G01 Y25.38 F800   ; clear of the layer below
G01 U3.5 F100
S240
G33 X34.25 K0.50
S720
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y25.07 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- Layer 27 of 28, left to right, 72 turns ----

G01 Y25.81 F800   ; clear of the layer below
G01 U3.4 F100
S240
G33 X1.75 K0.50
S720
G33 X9.25 K0.50
G33 X18.25 K0.50
G01 Y25.51 F400
G33 X27.25 K0.50
G33 X32.75 K0.50
S360           ; slow down for the flange
G33 X35.25 K0.50
S120
G33 X35.75 K0.50
G04 F0.3       ; let the wire climb

; Press the layer down
S60
G01 Z-4 F400
G04 F1.5
G01 Z0 F400

; ---- Layer 28 of 28, right to left, 72 turns ----

G01 Y26.24 F800   ; clear of the layer below
G01 U3.3 F100
S240
G33 X34.25 K0.50
S720
G33 X26.75 K0.50
G33 X17.75 K0.50
G01 Y25.94 F400
G33 X8.75 K0.50
G33 X3.25 K0.50
S360           ; slow down for the flange
G33 X0.75 K0.50
S120
G33 X0.25 K0.50
G04 F0.3       ; let the wire climb

; ---- End: tie off and cut ----

S60
G01 U2.0 F100
G33 X3.25 K1.00
G33 X0.25 K1.00
M05
G01 X-2 F600
S60 M03        ; two turns round the pin
G04 F2.0
M05
M10            ; clamp the wire
G01 U0 F100
M12            ; cut

G00 Y40
G00 X-6 Z12
M30
