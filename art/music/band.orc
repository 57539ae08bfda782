; The band that plays the scores. Every note brings
;
;   p4 note number   p5 loudness 0..1   p6 pan 0..1   p7 share sent to the room   p8 share sent to the echo
;
; A note must sound the same in every pass of a loop: noise starts from a fixed seed, and nothing
; runs freely from note to note.

sr = 44100
ksmps = 64
nchnls = 2
0dbfs = 1

gaRoomLeft init 0
gaRoomRight init 0
gaEcho init 0

opcode Play, 0, aiiii
  aIn, iLoud, iPan, iRoom, iEcho xin
  aLeft = aIn * iLoud * cos(iPan * $M_PI_2)
  aRight = aIn * iLoud * sin(iPan * $M_PI_2)
  outs aLeft, aRight
  gaRoomLeft += aLeft * iRoom
  gaRoomRight += aRight * iRoom
  gaEcho += aIn * iLoud * iEcho
endop

; Shorter for higher notes, like bars and strings.
opcode Ring, i, ii
  iSeconds, iFreq xin
  xout limit(iSeconds * sqrt(220 / iFreq), 0.15, iSeconds * 1.6)
endop

opcode Decay, a, ii
  iSeconds, iBend xin
  aEnv transeg 0, 0.002, 0, 1, iSeconds - 0.002, iBend, 0
  xout aEnv
endop

opcode Vibrato, k, iii
  iDepth, iRate, iWait xin
  kDepth linseg 0, iWait, 0, 0.3, iDepth, 1, iDepth
  kSwing oscili kDepth, iRate
  xout 1 + kSwing
endop

;; Struck and plucked

instr Marimba
  iFreq = cpsmidinn(p4)
  p3 Ring 1.1, iFreq
  aEnv Decay p3, -6
  aBar = oscili:a(aEnv, iFreq) + oscili:a(aEnv ^ 2 * 0.35, iFreq * 3.98) + oscili:a(aEnv ^ 4 * 0.2, iFreq * 9.9)
  aKnock butterbp rand:a(aEnv ^ 30, 0.3), 1400, 900
  Play aBar + aKnock * 0.8, p5, p6, p7, p8
endin

instr Kalimba
  iFreq = cpsmidinn(p4)
  p3 Ring 1.4, iFreq
  aEnv Decay p3, -5
  aTine = oscili:a(aEnv, iFreq) + oscili:a(aEnv ^ 3 * 0.3, iFreq * 2.01) + oscili:a(aEnv ^ 6 * 0.3, iFreq * 5.82)
  aThumb butterbp rand:a(aEnv ^ 40, 0.6), 2600, 1500
  Play aTine + aThumb * 0.5, p5, p6, p7, p8
endin

instr SteelPan
  iFreq = cpsmidinn(p4)
  p3 Ring 1.5, iFreq
  aEnv Decay p3, -4.5
  kBend transeg 1.012, 0.05, -3, 1, p3, 0, 1
  aPan = oscili:a(aEnv * 0.8, iFreq * kBend) + oscili:a(aEnv ^ 1.5 * 0.55, iFreq * 2.004 * kBend)
  aPan += oscili:a(aEnv ^ 2.5 * 0.25, iFreq * 3.01) + oscili:a(aEnv ^ 3 * 0.15, iFreq * 4.17)
  Play aPan, p5, p6, p7, p8
endin

; A hammered string: two, a little apart, brighter while loud
instr Dulcimer
  iFreq = cpsmidinn(p4)
  p3 Ring 1.9, iFreq
  aEnv Decay p3, -5
  kBright transeg 12, 0.25, -4, 4, p3, -2, 1.5
  aString butterhp vco2(0.5, iFreq * 1.0015) + vco2(0.5, iFreq * 0.9985, 2, 0.3), iFreq * 0.5
  aTone tone aString, min:k(iFreq * kBright, k(11000))
  Play aTone * aEnv * 1.1, p5, p6, p7, p8
endin

instr Harp
  iFreq = cpsmidinn(p4)
  p3 Ring 1.7, iFreq
  aEnv Decay p3, -5
  aHarp = oscili:a(aEnv, iFreq) + oscili:a(aEnv ^ 1.5 * 0.5, iFreq * 2) + oscili:a(aEnv ^ 2 * 0.3, iFreq * 3)
  aHarp += oscili:a(aEnv ^ 3 * 0.2, iFreq * 4) + oscili:a(aEnv ^ 5 * 0.15, iFreq * 6)
  Play aHarp * 0.8, p5, p6, p7, p8
endin

; Frozen glass: a bell of slightly stretched partials
instr Bell
  iFreq = cpsmidinn(p4)
  p3 = limit(3.2 * sqrt(440 / iFreq), 1, 4)
  aEnv Decay p3, -6
  aBell = oscili:a(aEnv, iFreq) + oscili:a(aEnv ^ 1.5 * 0.4, iFreq * 2.76) + oscili:a(aEnv ^ 3 * 0.22, iFreq * 5.4)
  aBell += oscili:a(aEnv * 0.25, iFreq * 1.004)
  Play aBell * 0.8, p5, p6, p7, p8
endin

; A violin string, plucked
instr Pizzicato
  iFreq = cpsmidinn(p4)
  p3 Ring 0.6, iFreq
  aEnv Decay p3, -6
  kBright transeg 9, 0.12, -4, 2.5, p3, 0, 2
  aString butterlp vco2(0.7, iFreq) + oscili:a(0.4, iFreq), min:k(iFreq * kBright, k(7000))
  aFinger butterbp rand:a(aEnv ^ 40, 0.71), 1800, 1200
  Play (butterhp:a(aString, iFreq * 0.5) + aFinger * 0.5) * aEnv, p5, p6, p7, p8
endin

;; Blown and bowed

instr Flute
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.045, 1, 0.12, 0.85, 0.1, 0
  kFreq = iFreq * Vibrato(0.006, 5.1, 0.2)
  aTone = oscili:a(1, kFreq) + oscili:a(0.28, kFreq * 2) + oscili:a(0.1, kFreq * 3)
  aChiff expsegr 1, 0.08, 0.12, 1, 0.12, 0.1, 0.05
  aBreath butterbp rand:a(1, 0.45), iFreq * 2, iFreq * 0.8
  Play (aTone * 0.75 + aBreath * aChiff * 0.7) * aEnv, p5, p6, p7, p8
endin

; A double reed, as snake charmers play it
instr Reed
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.03, 1, 0.1, 0.8, 0.08, 0
  kScoop transeg 0.975, 0.07, -2, 1, 1, 0, 1
  kFreq = iFreq * kScoop * Vibrato(0.009, 5.6, 0.25)
  aReed butterhp vco2(1, kFreq, 2, 0.18), iFreq * 0.5 ; a narrow pulse has an offset
  aNose = butterbp(aReed, 1150, 500) * 1.1 + butterbp(aReed, 2700, 700) * 0.5 + butterlp(aReed, 700) * 0.35
  Play aNose * aEnv, p5, p6, p7, p8
endin

instr Horn
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.025, 1, 0.12, 0.75, 0.07, 0
  kBright transeg 2, 0.05, 0, 7, 0.3, -3, 4
  aPair = vco2(0.5, iFreq * 1.003) + vco2(0.5, iFreq * 0.997)
  aHorn butterlp aPair, min:k(iFreq * kBright, k(9000))
  Play aHorn * aEnv, p5, p6, p7, p8
endin

instr Pad
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.5, 1, 0.6, 0
  kOpen linseg 2.2, 1.4, 4.5, 1.4, 3
  aLow vco2 0.4, iFreq * 0.9965
  aHigh vco2 0.4, iFreq * 1.0035
  aSum = (aLow + aHigh) * aEnv
  aSoft butterlp aSum, min:k(iFreq * kOpen, k(5000))
  Play aSoft, p5, p6, p7, p8
endin

instr Strings
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.07, 1, 0.15, 0.8, 0.14, 0
  aPair = vco2(0.45, iFreq * Vibrato(0.004, 5.3, 0.15)) + vco2(0.45, iFreq * 1.004)
  aString butterlp aPair, limit(iFreq * 6, 1500, 6000)
  Play aString * aEnv, p5, p6, p7, p8
endin

; Two reeds that beat softly against each other, and a third an octave up
instr Accordion
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.05, 1, 0.2, 0.85, 0.09, 0
  aReeds = vco2(0.32, iFreq * 0.997) + vco2(0.32, iFreq * 1.003) + vco2(0.12, iFreq * 2.001, 2, 0.3)
  aBox butterlp butterhp:a(aReeds, iFreq * 0.5), 3200
  Play (aBox + butterbp:a(aReeds, 900, 500) * 0.5) * aEnv, p5, p6, p7, p8
endin

;; Electric

instr Lead
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.006, 1, 0.08, 0.7, 0.06, 0
  kFreq = iFreq * Vibrato(0.007, 5.8, 0.18)
  kWidth linseg 0.25, 0.4, 0.45, 1, 0.45
  aPulse butterhp vco2(0.7, kFreq, 2, kWidth), iFreq * 0.5
  Play butterlp:a(aPulse, 6500) * aEnv, p5, p6, p7, p8
endin

instr Chip
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.003, 1, 0.09, 0.35, 0.03, 0
  aPulse butterhp vco2(0.6, iFreq, 2, 0.25), iFreq * 0.5
  Play butterlp:a(aPulse, 5500) * aEnv, p5, p6, p7, p8
endin

; Root, fifth and octave through one overdriven amplifier
instr Guitar
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.004, 1, 0.12, 0.8, 1.4, 0.5, 0.05, 0
  aStrings = vco2(0.4, iFreq) + vco2(0.35, iFreq * 1.4985) + vco2(0.3, iFreq * 2.003)
  aAmp = tanh(butterlp:a(aStrings, 2600) * 4)
  aBox butterlp butterhp:a(aAmp, 90), 3600
  Play aBox * aEnv * 0.6, p5, p6, p7, p8
endin

; Drawbars, and a horn turning in its box
instr Organ
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.008, 1, 0.06, 0
  kFreq = iFreq * Vibrato(0.003, 6.4, 0.05)
  aBars = oscili:a(0.5, kFreq * 0.5) + oscili:a(0.6, kFreq) + oscili:a(0.4, kFreq * 1.5) + oscili:a(0.35, kFreq * 2)
  aBars += oscili:a(0.2, kFreq * 3) + oscili:a(0.15, kFreq * 4) + oscili:a(0.08, kFreq * 6)
  Play tanh(aBars) * aEnv, p5, p6, p7, p8
endin

instr Bass
  iFreq = cpsmidinn(p4)
  aEnv linsegr 0, 0.006, 1, 0.25, 0.65, 0.05, 0
  kBright transeg 9, 0.2, -4, 2.5, 1, 0, 2.5
  aSaw = vco2(0.6, iFreq) + oscili:a(0.5, iFreq)
  aBass moogladder aSaw, min:k(iFreq * kBright, k(4000)), 0.25
  Play aBass * aEnv * 1.3, p5, p6, p7, p8
endin

; A plucked double bass
instr DeepBass
  iFreq = cpsmidinn(p4)
  aEnv transegr 0, 0.005, 0, 1, 1.1, -3, 0.05, 0.06, 0, 0
  aBody = oscili:a(1, iFreq) + oscili:a(aEnv * 0.5, iFreq * 2) + oscili:a(aEnv ^ 2 * 0.35, iFreq * 3)
  aBody += oscili:a(aEnv ^ 4 * 0.25, iFreq * 5)
  Play tanh(aBody * 1.2) * aEnv * 0.9, p5, p6, p7, p8
endin

;; Drums

instr Kick
  p3 = 0.28
  aEnv Decay p3, -3.5
  kFreq transeg 190, 0.05, -4, 58, p3, -1, 44
  aClick butterhp rand:a(aEnv ^ 40, 0.2), 1500
  Play tanh(oscili:a(aEnv, kFreq) * 1.6 + aClick * 0.4), p5, p6, p7, p8
endin

instr Snare
  p3 = 0.22
  aEnv Decay p3, -5
  aBuzz butterbp rand:a(aEnv, 0.77), 3800, 4500
  aSkin oscili aEnv ^ 2, 205
  Play aBuzz * 1.2 + aSkin * 0.6, p5, p6, p7, p8
endin

instr Rim
  p3 = 0.07
  aEnv Decay p3, -6
  aWood = oscili:a(aEnv, 1710) + oscili:a(aEnv, 830) + butterbp:a(rand:a(aEnv, 0.9), 2600, 1200)
  Play aWood * 0.9, p5, p6, p7, p8
endin

; A few palms that do not quite meet
instr Clap
  p3 = 0.25
  aEnv linseg 0, 0.001, 1, 0.009, 0.2, 0.001, 0.9, 0.009, 0.2, 0.001, 1, 0.05, 0.25, 0.17, 0
  aPalms butterbp rand:a(1, 0.29), 1500, 1400
  Play aPalms * aEnv * 1.4, p5, p6, p7, p8
endin

; The two beats of a clock: 84 and 86
instr Tick
  iFreq = p4 == 84 ? 2350 : 1870
  p3 = 0.05
  aEnv Decay p3, -7
  aGear = oscili:a(aEnv, iFreq) + oscili:a(aEnv ^ 2 * 0.6, iFreq * 2.37) + butterbp:a(rand:a(aEnv ^ 6, 0.47), 4500, 3000)
  Play aGear * 0.8, p5, p6, p7, p8
endin

instr ClosedHat
  p3 = 0.06
  aHiss butterhp rand:a(1, 0.37), 7500
  Play aHiss * Decay(p3, -5), p5, p6, p7, p8
endin

instr OpenHat
  p3 = 0.34
  aHiss butterhp rand:a(1, 0.41), 6800
  Play aHiss * Decay(p3, -4) * 0.9, p5, p6, p7, p8
endin

instr Shaker
  p3 = 0.09
  aEnv transeg 0, 0.025, 1, 1, p3 - 0.025, -4, 0
  aBeads butterbp rand:a(1, 0.63), 5600, 3200
  Play aBeads * aEnv, p5, p6, p7, p8
endin

; Three hand drums, tuned by their note: 71, 72 and 74
instr HandDrum
  iFreq = p4 == 71 ? 150 : (p4 == 72 ? 205 : 310)
  p3 = 0.3
  aEnv Decay p3, -5
  kFreq transeg iFreq * 1.25, 0.03, -3, iFreq, p3, 0, iFreq * 0.97
  aSlap butterbp rand:a(aEnv ^ 12, 0.52), iFreq * 8, iFreq * 5
  Play oscili:a(aEnv, kFreq) + oscili:a(aEnv ^ 3 * 0.3, kFreq * 1.6) + aSlap * 0.7, p5, p6, p7, p8
endin

instr Clank
  p3 = 0.35
  aEnv Decay p3, -6
  aPlate = oscili:a(aEnv, 523) * oscili:a(1, 1187) + oscili:a(aEnv ^ 2, 2093) * oscili:a(1, 761)
  aHit butterbp rand:a(aEnv ^ 8, 0.18), 3300, 2000
  Play aPlate * 0.7 + aHit * 0.6, p5, p6, p7, p8
endin

instr Tom
  p3 = 0.45
  aEnv Decay p3, -4
  kFreq transeg 170, 0.08, -3, 98, p3, -1, 80
  aSlap butterlp rand:a(aEnv ^ 10, 0.33), 1800
  Play oscili:a(aEnv, kFreq) + aSlap * 0.5, p5, p6, p7, p8
endin

; A big frame drum, struck in the middle
instr FrameDrum
  p3 = 0.7
  aEnv Decay p3, -4.5
  kFreq transeg 110, 0.06, -3, 78, p3, -1, 70
  aHand butterlp rand:a(aEnv ^ 8, 0.83), 900
  Play oscili:a(aEnv, kFreq) * 1.1 + oscili:a(aEnv ^ 2 * 0.4, kFreq * 1.59) + aHand * 0.6, p5, p6, p7, p8
endin

; The same drum at its edge
instr FrameEdge
  p3 = 0.18
  aEnv Decay p3, -6
  aSkin butterbp rand:a(aEnv, 0.47), 1900, 1300
  Play aSkin * 0.9 + oscili:a(aEnv * 0.3, 342), p5, p6, p7, p8
endin

instr Cymbal
  p3 = 1.9
  aHiss butterhp rand:a(1, 0.58), 4200
  Play aHiss * Decay(p3, -4) * 0.7, p5, p6, p7, p8
endin

; The room and the echo behind everything. p4 seconds from echo to echo.
instr Surroundings
  aBackLeft init 0
  aBackRight init 0
  aDark butterlp gaEcho + aBackRight * 0.45, 3500
  aBackLeft delay aDark, p4
  aBackRight delay aBackLeft, p4
  aWetLeft, aWetRight reverbsc gaRoomLeft + aBackLeft * 0.2, gaRoomRight + aBackRight * 0.2, 0.84, 6500, sr, 0
  outs aWetLeft + aBackLeft, aWetRight + aBackRight
  clear gaRoomLeft, gaRoomRight, gaEcho
endin
