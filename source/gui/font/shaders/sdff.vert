#ifdef GL_ES
precision mediump float;
attribute vec4 inVertexPosition;
attribute vec4 inVertexColor;
attribute vec2 inTexCoord0;
#endif

uniform mat4 uWVPMatrix;

varying vec4 vColor;
varying vec2 vTexCoord;

void main()
{
#ifdef GL_ES
    gl_Position = uWVPMatrix * inVertexPosition;
    vColor = inVertexColor.bgra;
    vTexCoord = inTexCoord0;
#else
    gl_Position = uWVPMatrix * gl_Vertex;
    vColor = gl_Color;
    vTexCoord = gl_MultiTexCoord0.xy;
#endif
}
